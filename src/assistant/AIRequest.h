#pragma once

#include "assistant/AIMessage.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// What a model is asked.
struct AIRequest {
    QString system;
    QList<AIMessage> messages;
    std::optional<QJsonObject> schema; ///< of a structured answer; without one the answer is text
    bool cheap = false; ///< many and simple, like judging files: the cheaper model will do
};

} // namespace quillon

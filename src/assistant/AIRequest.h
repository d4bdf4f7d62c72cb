#pragma once

#include "assistant/AIMessage.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <stop_token>

namespace quillon {

/// What a model is asked.
struct AIRequest {
    QString system = {};
    QList<AIMessage> messages;
    /// The JSON Schema of a structured answer, as text and to be sent as it stands: models fill in
    /// properties in the order in which they are listed, and what comes first shapes what follows.
    /// Without one the answer is text.
    std::optional<QByteArray> schema = {};
    bool cheap = false; ///< many and simple, like judging files: the cheaper model will do
    /// Stopped, the request fails soon, and the model works on it no longer. To be stopped on the
    /// thread that sent it.
    std::stop_token stop = {};
};

} // namespace quillon

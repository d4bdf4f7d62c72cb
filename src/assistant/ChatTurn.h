#pragma once

#include "assistant/DobbinAction.h"
#include "model/LogEntry.h"
#include "platform/Clock.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <vector>

namespace quillon {

class JsonReader;

/// One turn of the conversation with Dobbin: a question, or what came of one.
struct ChatTurn {
    QUuid id = QUuid::createUuid();
    bool isUser = false;
    QString text = {};
    std::vector<LogEntry> entries = {};     ///< shown with an answer, as they were then
    std::vector<DobbinAction> actions = {}; ///< changes that are offered with an answer
    bool isError = false;                   ///< the text says why there is no answer
    Timestamp date = {};
    /// Whoever asked has seen the answer, so that its changes may be meant by their numbers alone.
    bool wasShown = false;

    bool operator==(const ChatTurn&) const = default;
};

[[nodiscard]] QJsonObject toJson(const ChatTurn& turn);
/// `now` stands in for a date that is absent.
[[nodiscard]] Expected<ChatTurn> chatTurnFromJson(const JsonReader& json, Timestamp now);

/// How many turns a conversation keeps.
inline constexpr std::size_t turnCap = 60;

} // namespace quillon

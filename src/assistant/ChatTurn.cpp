#include "assistant/ChatTurn.h"

#include "model/JsonDate.h"
#include "model/JsonFields.h"
#include "model/JsonWriter.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QJsonObject toJson(const ChatTurn& turn) {
    QJsonObject object{
        {"id"_L1, uuidText(turn.id)},
        {"isUser"_L1, turn.isUser},
        {"text"_L1, turn.text},
        {"entries"_L1, jsonList(turn.entries)},
        {"actions"_L1, jsonList(turn.actions)},
        {"isError"_L1, turn.isError},
        {"date"_L1, jsonDate(turn.date)},
    };
    if (turn.wasShown)
        object.insert("wasShown"_L1, true);
    return object;
}

Expected<ChatTurn> chatTurnFromJson(const JsonReader& json, Timestamp now) {
    ChatTurn turn;
    turn.date = now;
    JsonFields fields(json);
    fields.optional("id"_L1, turn.id);
    fields.required("isUser"_L1, turn.isUser);
    fields.required("text"_L1, turn.text);
    fields.optionalList("entries"_L1, turn.entries,
                        [now](const JsonReader& entry) { return logEntryFromJson(entry, now); });
    fields.optionalList("actions"_L1, turn.actions, dobbinActionFromJson);
    fields.optional("isError"_L1, turn.isError);
    fields.optional("date"_L1, turn.date);
    fields.optional("wasShown"_L1, turn.wasShown);
    return fields.result(std::move(turn));
}

} // namespace quillon

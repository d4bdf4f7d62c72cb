#include "model/RuleAction.h"

#include "model/JsonFields.h"
#include "model/JsonWriter.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QJsonObject toJson(const RuleAction& action) {
    QJsonObject object{
        {"id"_L1, uuidText(action.id)},
        {"type"_L1, rawValue(action.type)},
        {"renamePattern"_L1, action.renamePattern},
        {"tag"_L1, rawValue(action.tag)},
        {"sortBy"_L1, rawValue(action.sortBy)},
        {"keepOriginal"_L1, action.keepOriginal},
        {"scriptCommand"_L1, action.scriptCommand},
    };
    insertIfPresent(object, "destination"_L1, action.destination);
    insertIfPresent(object, "shortcutName"_L1, action.shortcutName);
    return object;
}

Expected<RuleAction> actionFromJson(const JsonReader& json) {
    RuleAction action;
    JsonFields fields(json);
    fields.optional("id"_L1, action.id);
    fields.optional("type"_L1, action.type);
    fields.optional("destination"_L1, action.destination);
    fields.optional("renamePattern"_L1, action.renamePattern);
    fields.optional("tag"_L1, action.tag);
    fields.optional("sortBy"_L1, action.sortBy);
    fields.optional("keepOriginal"_L1, action.keepOriginal);
    fields.optional("scriptCommand"_L1, action.scriptCommand);
    fields.optional("shortcutName"_L1, action.shortcutName);
    return fields.result(std::move(action));
}

} // namespace quillon

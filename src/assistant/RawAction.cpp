#include "assistant/RawAction.h"

#include "assistant/DobbinAction.h"
#include "store/JsonStream.h"

#include <QJsonArray>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::literals;

namespace {

constexpr qsizetype longestText = 4000;
constexpr qsizetype mostNames = 500;

QString textFrom(const QJsonValue& value) {
    const QString text = value.toString();
    return text.size() > longestText || !text.isValidUtf16() ? QString() : text;
}

void property(JsonStream& json, std::string_view name, std::string_view description) {
    json.key(name).beginObject().key("type").text("string"sv);
    json.key("description").text(description).endObject();
}

} // namespace

RawAction rawActionFromJson(const QJsonValue& value) {
    RawAction raw{.type = textFrom(value["type"_L1]),
                  .folder = textFrom(value["folder"_L1]),
                  .rule = textFrom(value["rule"_L1]),
                  .description = textFrom(value["description"_L1])};
    for (const QJsonValue& name : value["ruleOrder"_L1].toArray()) {
        if (raw.ruleOrder.size() == mostNames)
            break;
        raw.ruleOrder.append(textFrom(name));
    }
    return raw;
}

QByteArray rawActionsSchema() {
    JsonStream json;
    json.beginObject().key("type").text("array"sv);
    json.key("description")
        .text("Changes Dobbin suggested that Quillon can make, at most two; empty if none"sv);
    json.key("items").beginObject().key("type").text("object"sv);
    json.key("properties").beginObject();
    json.key("type").beginObject().key("type").text("string"sv).key("enum").beginList();
    for (const auto kind : allCases<DobbinAction::Kind>())
        json.text(rawValue(kind));
    json.endList().endObject();
    property(json, "folder", "Folder name");
    property(json, "rule", "Rule name for turnOnRule or turnOffRule, otherwise empty");
    json.key("ruleOrder").beginObject().key("type").text("array"sv);
    json.key("items").beginObject().key("type").text("string"sv).endObject();
    json.key("description")
        .text("For reorderRules: every rule name in the folder in the new order"sv);
    json.endObject();
    property(json, "description", "For writeRule: the rule in one plain sentence");
    json.endObject().key("required").beginList();
    for (const auto name : {"type"sv, "folder"sv, "rule"sv, "ruleOrder"sv, "description"sv})
        json.text(name);
    json.endList().key("additionalProperties").truth(false).endObject().endObject();
    return json.take();
}

} // namespace quillon

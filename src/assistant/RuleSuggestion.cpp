#include "assistant/RuleSuggestion.h"

#include "assistant/KeyText.h"
#include "model/JsonFields.h"
#include "store/StableHash.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

std::uint64_t suggestionKey(Rule rule) {
    rule.id = QUuid();
    return stableHash(rule);
}

QString suggestionID(const RuleSuggestion& suggestion) {
    constexpr int digits = 6;
    return keyText(suggestionKey(suggestion.rule)).first(digits);
}

QJsonObject toJson(const RuleSuggestion& suggestion) {
    return {
        {"topic"_L1, rawValue(suggestion.topic)},
        {"subjects"_L1, QJsonArray::fromStringList(suggestion.subjects)},
        {"keys"_L1, keysToJson(suggestion.keys)},
        {"rule"_L1, toJson(suggestion.rule)},
    };
}

Expected<RuleSuggestion> suggestionFromJson(const JsonReader& json) {
    RuleSuggestion suggestion;
    std::vector<QString> subjects;
    JsonFields fields(json);
    fields.required("topic"_L1, suggestion.topic);
    fields.requiredList("subjects"_L1, subjects,
                        [](const JsonReader& text) { return text.read<QString>(); });
    fields.requiredList("keys"_L1, suggestion.keys, keyFromJson);
    suggestion.subjects = QStringList(subjects.begin(), subjects.end());
    const auto rule = json.member("rule"_L1);
    if (!rule)
        return json.missing("rule"_L1);
    auto read = ruleFromJson(*rule);
    if (!read)
        return std::unexpected(read.error());
    suggestion.rule = std::move(*read);
    const bool namesExtensions =
        suggestion.topic != SuggestionTopic::extension || !suggestion.subjects.isEmpty();
    if (suggestion.rule.actions.empty() || !namesExtensions)
        return json.wrong(u"this is no suggestion"_s);
    return fields.result(std::move(suggestion));
}

} // namespace quillon

#pragma once

#include "model/RawValue.h"
#include "model/Rule.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace quillon {

class JsonReader;

/// What a folder may be full of, in the order in which it is looked for.
enum class SuggestionTopic : std::uint8_t {
    screenshots,
    invoices,
    installers,
    archives,
    largeFiles,
    host,
    extension,
};

template <>
inline constexpr auto rawValues<SuggestionTopic> = std::to_array<std::u16string_view>({
    u"screenshots",
    u"invoices",
    u"installers",
    u"archives",
    u"largeFiles",
    u"host",
    u"extension",
});

template <>
inline constexpr std::u16string_view rawValueNoun<SuggestionTopic> = u"a topic";

/// A rule that would find something to do in a folder.
struct RuleSuggestion {
    SuggestionTopic topic = SuggestionTopic::extension;
    QStringList subjects = {}; ///< of a host its name, of extensions these; otherwise empty
    Rule rule = {};            ///< complete and switched on
    /// See suggestionKey(): of the rule, or, where a model has named or joined what was counted, of
    /// the rules that were counted.
    std::vector<std::uint64_t> keys = {};
    std::size_t count = 0;     ///< the files that the rule would take if it were added now
    QString reason = {};       ///< one sentence: "14 screenshots, the oldest from March."
    QStringList examples = {}; ///< the names of a few of the files

    bool operator==(const RuleSuggestion&) const = default;
};

/// The same for two rules with the same conditions and actions, whatever they are called and
/// whatever their ids.
[[nodiscard]] std::uint64_t suggestionKey(Rule rule);

/// What people type for it, 6 hexadecimal digits of its rule's key: unlike its number in a list, it
/// never comes to mean another rule.
[[nodiscard]] QString suggestionID(const RuleSuggestion& suggestion);

/// What of a suggestion holds for longer than a moment: all but the count, the reason and the
/// examples.
[[nodiscard]] QJsonObject toJson(const RuleSuggestion& suggestion);
[[nodiscard]] Expected<RuleSuggestion> suggestionFromJson(const JsonReader& json);

} // namespace quillon

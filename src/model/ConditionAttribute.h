#pragma once

#include "model/MatchOperator.h"
#include "model/RawValue.h"

#include <cstdint>
#include <vector>

namespace quillon {

enum class ConditionAttribute : std::uint8_t {
    name,
    fullName,
    extension,
    kind,
    tag,
    whereFrom,
    dateModified,
    dateAdded,
    dateCreated,
    lastOpened,
    size,
    dobbinSays,
};

template <>
inline constexpr auto rawValues<ConditionAttribute> = std::to_array<std::u16string_view>({
    u"Name",
    u"Full name",
    u"Extension",
    u"Kind",
    u"Tag",
    u"Where from",
    u"Date modified",
    u"Date added",
    u"Date created",
    u"Last opened",
    u"Size",
    u"Dobbin says it",
});

template <>
inline constexpr std::u16string_view rawValueNoun<ConditionAttribute> = u"an attribute";

/// Whether it looks at a date, so that a file may come to match, or cease to, with time alone.
[[nodiscard]] bool isDate(ConditionAttribute attribute);

/// The operators that people and the rule writer may choose, in the order in which they are
/// offered. A record may hold another one; it is then up to matching what that means.
[[nodiscard]] std::vector<MatchOperator> allowedOperators(ConditionAttribute attribute);

} // namespace quillon

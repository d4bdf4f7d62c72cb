#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class MatchOperator : std::uint8_t {
    contains,
    is,
    isNot,
    beginsWith,
    endsWith,
    matchesRegex,
    greaterThan,
    lessThan,
    withinLastDays,
    olderThanDays,
    before,
    after,
};

template <>
inline constexpr auto rawValues<MatchOperator> = std::to_array<std::u16string_view>({
    u"contains",
    u"is",
    u"is not",
    u"begins with",
    u"ends with",
    u"matches regex",
    u"greater than",
    u"less than",
    u"within last (days)",
    u"older than (days)",
    u"before",
    u"after",
});

template <>
inline constexpr std::u16string_view rawValueNoun<MatchOperator> = u"an operator";

} // namespace quillon

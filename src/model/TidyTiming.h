#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class TidyTiming : std::uint8_t {
    live,
    every15,
    hourly,
    every6h,
    daily,
    manual,
};

template <>
inline constexpr auto rawValues<TidyTiming> = std::to_array<std::u16string_view>({
    u"live",
    u"every15",
    u"hourly",
    u"every6h",
    u"daily",
    u"manual",
});

template <>
inline constexpr std::u16string_view rawValueNoun<TidyTiming> = u"a timing";

} // namespace quillon

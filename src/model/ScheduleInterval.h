#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class ScheduleInterval : std::uint8_t {
    off,
    every15Minutes,
    hourly,
    every6Hours,
    daily,
};

template <>
inline constexpr auto rawValues<ScheduleInterval> = std::to_array<std::u16string_view>({
    u"Off",
    u"Every 15 minutes",
    u"Hourly",
    u"Every 6 hours",
    u"Daily",
});

template <>
inline constexpr std::u16string_view rawValueNoun<ScheduleInterval> = u"a schedule";

} // namespace quillon

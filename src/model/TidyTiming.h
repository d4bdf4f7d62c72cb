#pragma once

#include "model/RawValue.h"
#include "model/ScheduleInterval.h"

#include <cstdint>

namespace quillon {

/// When a folder is tidied: the one choice that stands for its `isWatching` and `schedule`. Never
/// stored itself.
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

[[nodiscard]] QString label(TidyTiming timing);

[[nodiscard]] bool watchesLive(TidyTiming timing);
[[nodiscard]] ScheduleInterval scheduleOf(TidyTiming timing);

/// A folder that is both watched and scheduled, which only a hand-edited file can hold, reads as
/// live: its files are tidied as they land, and choosing "live" again then drops the schedule.
[[nodiscard]] TidyTiming timingOf(bool isWatching, ScheduleInterval schedule);

} // namespace quillon

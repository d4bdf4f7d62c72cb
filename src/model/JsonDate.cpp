#include "model/JsonDate.h"

#include <cmath>
#include <cstdint>

namespace quillon {

namespace {

constexpr std::int64_t referenceSeconds =
    std::chrono::sys_seconds{std::chrono::sys_days{std::chrono::year{2001} / 1 / 1}}
        .time_since_epoch()
        .count();
constexpr std::int64_t nanosPerSecond = 1'000'000'000;
constexpr std::int64_t furthestSeconds = INT64_MAX / nanosPerSecond - 1;

} // namespace

// Whole seconds and the rest are kept apart throughout: together they have more digits than a
// double.

double jsonDate(Timestamp moment) {
    const std::int64_t count = moment.time_since_epoch().count();
    std::int64_t seconds = count / nanosPerSecond;
    std::int64_t nanos = count % nanosPerSecond;
    if (nanos < 0) {
        nanos += nanosPerSecond;
        --seconds;
    }
    return static_cast<double>(seconds - referenceSeconds) + static_cast<double>(nanos) / 1e9;
}

std::optional<Timestamp> timestampFromJsonDate(double seconds) {
    const double whole = std::floor(seconds);
    if (!(std::abs(whole + static_cast<double>(referenceSeconds)) <= furthestSeconds))
        return std::nullopt;
    const std::int64_t nanos = std::llround((seconds - whole) * 1e9);
    const std::int64_t start =
        (static_cast<std::int64_t>(whole) + referenceSeconds) * nanosPerSecond;

    // Of the moments that share this number the one in whole microseconds is what was meant.
    const Timestamp rounded{std::chrono::nanoseconds{start + (nanos + 500) / 1000 * 1000}};
    if (jsonDate(rounded) == seconds)
        return rounded;
    return Timestamp{std::chrono::nanoseconds{start + nanos}};
}

} // namespace quillon

#pragma once

#include "platform/Clock.h"

#include <optional>

namespace quillon {

/// The form in which records store a moment: seconds since 2001-01-01T00:00:00Z.
[[nodiscard]] double jsonDate(Timestamp moment);

/// Exact for whole microseconds of the years 1730 to 2270, within 60 nanoseconds otherwise, and
/// storing the result again gives the same number for any date later than 2001 by a year or more.
/// Nothing for a number outside of what a Timestamp spans (the years 1678 to 2261).
[[nodiscard]] std::optional<Timestamp> timestampFromJsonDate(double seconds);

} // namespace quillon

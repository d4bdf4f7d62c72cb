#pragma once

#include "platform/Clock.h"

#include <optional>

namespace quillon {

/// The form in which records store a moment: seconds since 2001-01-01T00:00:00Z.
[[nodiscard]] double jsonDate(Timestamp moment);

/// Whole microseconds come back exactly from 1730 on, anything finer within half a microsecond.
/// What was read stores as the same number again, unless that is within months of 2001 and finer
/// than nanoseconds. Nothing for a number outside of what a Timestamp spans (1678 to 2261).
[[nodiscard]] std::optional<Timestamp> timestampFromJsonDate(double seconds);

} // namespace quillon

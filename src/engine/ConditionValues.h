#pragma once

#include "platform/Clock.h"

#include <QStringView>

#include <optional>

namespace quillon {

/// A finite number in the notation of C, whatever the user's locale: "7", "-0.5", "1e3", "0x1F".
/// The whole text must be the number, without spaces.
[[nodiscard]] std::optional<double> parsedNumber(QStringView text);

/// The start of a day "2024-5-1" or "2024-05-01" in the current time zone. No value when there is
/// no such day.
[[nodiscard]] std::optional<Timestamp> parsedDay(QStringView text);

/// As many nanoseconds, or the most that a timestamp can hold.
[[nodiscard]] Timestamp::duration clampedNanoseconds(double nanoseconds);

} // namespace quillon

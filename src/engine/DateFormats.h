#pragma once

#include "platform/Clock.h"

#include <QString>

#include <memory>
#include <optional>

namespace quillon {

/// Dates as text in the system's current time zone, which is looked up once, at construction. Keeps
/// every format that it has made. One thread at a time.
class DateFormats {
public:
    DateFormats();
    ~DateFormats();
    DateFormats(const DateFormats&) = delete;
    DateFormats& operator=(const DateFormats&) = delete;

    /// `pattern` in the letters of Unicode TR35 (yyyy, MMM, EEEE, HH …), with English words and
    /// plain digits whatever the user's locale. Nothing when a letter of it has no meaning.
    [[nodiscard]] std::optional<QString> format(const QString& pattern, Timestamp time);

    /// Year and month ("2024-05") with the digits and the calendar of the user's locale.
    [[nodiscard]] QString month(Timestamp time);

    /// Abbreviated date and time of day to the second, as people of a locale ("de_DE") write them;
    /// of the user's own when it is empty.
    [[nodiscard]] QString dateAndTime(Timestamp time, const QString& locale);

private:
    struct Formats;
    std::unique_ptr<Formats> formats_;
};

} // namespace quillon

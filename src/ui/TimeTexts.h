#pragma once

#include "platform/Clock.h"

#include <QDate>
#include <QLocale>
#include <QString>

namespace quillon {

// How moments are told, in the system's time zone. `now` is the moment at which it is read.

[[nodiscard]] QDate localDay(Timestamp moment);

/// "09:41", or as the locale writes the hours.
[[nodiscard]] QString clockText(Timestamp moment, const QLocale& locale = QLocale());

/// When an entry was written: "09:41" of today, "Yesterday", "17 Nov", "17 Nov 2025".
[[nodiscard]] QString entryTimeText(Timestamp moment, Timestamp now,
                                    const QLocale& locale = QLocale());

/// The same where the day is told elsewhere only on the screen: "Today, 09:41", "Yesterday, 09:41",
/// "17 Nov, 09:41".
[[nodiscard]] QString spokenTimeText(Timestamp moment, Timestamp now,
                                     const QLocale& locale = QLocale());

/// Above the entries of a day: "Today", "Yesterday", "Tuesday 17 November", with the year when it
/// isn't this one.
[[nodiscard]] QString dayHeading(QDate day, Timestamp now);

/// To follow a verb: "just now", "4 minutes ago", "3 hours ago", "yesterday", "on 17 Nov".
[[nodiscard]] QString timeAgoText(Timestamp moment, Timestamp now);

/// When something will happen within a day, to follow "Next": "at 10:00", "tomorrow at 10:00".
[[nodiscard]] QString comingTimeText(Timestamp moment, Timestamp now,
                                     const QLocale& locale = QLocale());

} // namespace quillon

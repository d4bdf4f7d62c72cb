#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

#include <optional>

namespace quillon {

/// The first date written in the text with a four-digit year, from 1000 to 2999: "2026-03-12",
/// "12 March 2026", "Mar 12th, 2026", "12/03/2026", "12.03.2026"; "March 2026" is its first day.
/// Months are English or the locale's. Where the order of day and month is open, it is that of the
/// locale, but day first between dots. What can't be a date, like 31 February, is none. Takes time
/// in proportion to the text.
[[nodiscard]] std::optional<QDate> firstDate(const QString& text, const QLocale& locale);

} // namespace quillon

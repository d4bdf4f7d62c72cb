#pragma once

#include <QString>
#include <QStringView>

namespace quillon {

// What single words of a question, in plain text, say about time; 0 for a word that doesn't.

/// The place of the word in a list of words with spaces between them, from 1.
[[nodiscard]] int placeIn(const QString& word, QStringView list);

/// 1 is Monday: "thursday", "thursdays", "thu".
[[nodiscard]] int weekdayOf(const QString& word);
[[nodiscard]] bool isShortWeekday(const QString& word);

/// 1 is January: "march", "mar".
[[nodiscard]] int monthOf(const QString& word);

/// How many: "a", "couple", "three", "12"; 999 at most.
[[nodiscard]] int numberOf(const QString& word);

/// Of a month: "12", "12th".
[[nodiscard]] int dayOf(const QString& word);

/// "12/3", "12/03/2026" and "12.03.2026", the day first; `day` is 0 for a word that isn't one.
struct NumericDate {
    int day = 0;
    int month = 0;
    int year = 0; ///< 0 where there is none
};
[[nodiscard]] NumericDate numericDate(const QString& word);

/// From 1970 to 2199.
[[nodiscard]] int yearOf(const QString& word);

} // namespace quillon

#include "assistant/TimeWords.h"

#include "assistant/QuestionWords.h"

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

int placeIn(const QString& word, QStringView list) {
    const auto words = list.split(u' ');
    const auto found = std::ranges::find_if(words, [&](QStringView one) { return one == word; });
    return found == words.end() ? 0 : int(found - words.begin()) + 1;
}

int weekdayOf(const QString& word) {
    const int day =
        placeIn(singular(word), u"monday tuesday wednesday thursday friday saturday sunday");
    if (day > 0)
        return day;
    static const std::array<QStringView, 7> shortNames{
        u"mon", u"tue tues", u"wed", u"thu thur thurs", u"fri", u"sat", u"sun"};
    for (std::size_t i = 0; i < shortNames.size(); ++i)
        if (placeIn(word, shortNames[i]) > 0)
            return int(i) + 1;
    return 0;
}

bool isShortWeekday(const QString& word) {
    return weekdayOf(word) > 0 && word.size() < 6;
}

int monthOf(const QString& word) {
    const int month = placeIn(word, u"january february march april may june july august september "
                                    "october november december");
    return month > 0 ? month
                     : placeIn(word == u"sept" ? u"sep"_s : word,
                               u"jan feb mar apr may jun jul aug sep oct nov dec");
}

int numberOf(const QString& word) {
    if (placeIn(word, u"a an") > 0)
        return 1;
    if (word == u"couple")
        return 2;
    if (const int number = placeIn(word, u"one two three four five six seven eight nine ten"))
        return number;
    const bool isShort = word.size() <= 3;
    return isShort ? std::max(0, word.toInt()) : 0;
}

int dayOf(const QString& word) {
    QString digits = word;
    for (const QStringView ending : {u"st", u"nd", u"rd", u"th"})
        if (word.endsWith(ending))
            digits.chop(2);
    const int day = digits.size() <= 2 ? digits.toInt() : 0;
    return day >= 1 && day <= 31 ? day : 0;
}

NumericDate numericDate(const QString& word) {
    const bool hasDots = word.count(u'.') == 2;
    const QStringList parts = word.split(hasDots ? u'.' : u'/');
    if (parts.size() < 2 || parts.size() > 3)
        return {};
    const int month = dayOf(parts[1]);
    const int year = yearOf(parts.value(2));
    const bool isDate = parts[0].size() <= 2 && parts[1].size() <= 2 && month <= 12 && month > 0 &&
                        (parts.size() == 2 || year > 0);
    return isDate ? NumericDate{.day = dayOf(parts[0]), .month = month, .year = year}
                  : NumericDate();
}

int yearOf(const QString& word) {
    const int year = word.size() == 4 ? word.toInt() : 0;
    return year >= 1970 && year < 2200 ? year : 0;
}

} // namespace quillon

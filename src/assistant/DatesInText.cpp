#include "assistant/DatesInText.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <span>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestMonth = 24;
constexpr qsizetype longestGap = 3;

bool isWordLetter(QChar c) {
    return c.isLetter() || c.isMark();
}

/// "März" however it is encoded, without the dot of an abbreviation.
QString monthKey(QStringView word) {
    QString key = word.toString().normalized(QString::NormalizationForm_C).toCaseFolded();
    while (key.endsWith(u'.'))
        key.chop(1);
    return key;
}

QHash<QString, int> monthNames(const QLocale& locale) {
    QHash<QString, int> months{{u"sept"_s, 9}};
    for (const QLocale& language : {locale, QLocale::c()})
        for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat})
            for (int month = 1; month <= 12; ++month) {
                months.insert(monthKey(language.monthName(month, format)), month);
                months.insert(monthKey(language.standaloneMonthName(month, format)), month);
            }
    return months;
}

bool isDayFirst(const QLocale& locale) {
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    return format.indexOf(u'd') < format.indexOf(u'M');
}

/// A run of digits or of letters.
struct Piece {
    qsizetype start = 0;
    qsizetype end = 0;
    bool isDigits = false;
    int number = -1; ///< of at most four digits, or -1

    [[nodiscard]] qsizetype size() const { return end - start; }
    [[nodiscard]] bool isWord() const { return size() > 0 && !isDigits; }
    [[nodiscard]] bool isYear() const { return size() == 4 && number >= 1000 && number < 3000; }
    [[nodiscard]] bool isDay() const { return size() <= 2 && number >= 1 && number <= 31; }
    [[nodiscard]] bool isOfDate() const { return size() <= 2 && number >= 0; }
};

class DateSearch {
public:
    DateSearch(const QString& text, const QLocale& locale)
        : text_(text), locale_(locale), months_(monthNames(locale)) {}

    std::optional<QDate> first() {
        for (qsizetype from = 0; from < text_.size();) {
            const Piece piece = pieceFrom(from);
            if (piece.size() == 0)
                break;
            const Found found = dateAt(piece);
            if (found.date.isValid())
                return found.date;
            from = std::max(piece.end, found.end);
        }
        return std::nullopt;
    }

private:
    /// A date, or the end of something that has the form of one and is none.
    struct Found {
        QDate date;
        qsizetype end = 0;
    };

    /// Empty at the end of the text.
    [[nodiscard]] Piece pieceFrom(qsizetype from) const {
        while (from < text_.size() && !text_[from].isDigit() && !isWordLetter(text_[from]))
            ++from;
        Piece piece{.start = from, .end = from};
        if (from == text_.size())
            return piece;
        piece.isDigits = text_[from].isDigit();
        const auto belongs = [&](QChar c) {
            return piece.isDigits ? c.isDigit() : isWordLetter(c);
        };
        while (piece.end < text_.size() && belongs(text_[piece.end]))
            ++piece.end;
        if (piece.isDigits && piece.size() <= 4) {
            piece.number = 0;
            for (const QChar digit : text().sliced(piece.start, piece.size()))
                piece.number = piece.number * 10 + digit.digitValue();
        }
        return piece;
    }

    /// What follows after a gap of these characters, or of none; empty when nothing does. A next
    /// piece is looked at twice or three times, never more.
    [[nodiscard]] Piece next(const Piece& piece, QLatin1StringView gap) const {
        qsizetype at = piece.end;
        while (at < text_.size() && at - piece.end < longestGap &&
               (gap.contains(text_[at]) || (text_[at].isSpace() && gap.contains(u' '))))
            ++at;
        const bool starts = at < text_.size() && (text_[at].isDigit() || isWordLetter(text_[at]));
        return starts ? pieceFrom(at) : Piece{.start = at, .end = at};
    }

    [[nodiscard]] int month(const Piece& piece) const {
        if (piece.size() == 0 || piece.size() > longestMonth || piece.isDigits)
            return 0;
        return months_.value(monthKey(text().sliced(piece.start, piece.size())));
    }

    [[nodiscard]] bool isOneOf(const Piece& piece, std::span<const QStringView> words) const {
        const QStringView word = text().sliced(piece.start, piece.size());
        return std::ranges::any_of(words, [&](QStringView other) {
            return word.compare(other, Qt::CaseInsensitive) == 0;
        });
    }

    /// Whether a letter with a case stands at the place: "x12/03/2026" is the number of something,
    /// while writing without spaces between words has no cases.
    [[nodiscard]] bool touchesWord(qsizetype at) const {
        return at >= 0 && at < text_.size() && (text_[at].isUpper() || text_[at].isLower());
    }

    [[nodiscard]] bool isNumber(qsizetype at) const {
        return at >= 0 && at < text_.size() && text_[at].isDigit();
    }

    [[nodiscard]] Found dateAt(const Piece& piece) const {
        if (!piece.isDigits)
            return monthFirst(piece);
        if (piece.isYear())
            return numeric(piece);
        if (!piece.isOfDate())
            return {};
        const Found found = numeric(piece);
        return found.end > 0 ? found : dayFirst(piece);
    }

    /// "2026-03-12", "12/03/2026", "12. 3. 2026"
    [[nodiscard]] Found numeric(const Piece& one) const {
        if (one.end >= text_.size() || touchesWord(one.start - 1))
            return {};
        const QChar separator = text_[one.end];
        if (separator != u'-' && separator != u'/' && separator != u'.')
            return {};
        const Piece two = after(one, separator);
        const Piece three = after(two, separator);
        const bool yearFirst = one.isYear() && two.isOfDate() && three.isOfDate();
        if (!two.isOfDate() || !(yearFirst || three.isYear()))
            return {};
        const auto goesOn = [&](qsizetype beside, qsizetype further) {
            return beside >= 0 && beside < text_.size() && text_[beside] == separator &&
                   isNumber(further);
        };
        // A longer row of numbers, such as a version, is none; a time may follow: "T09:30".
        if (goesOn(three.end, three.end + 1) || goesOn(one.start - 1, one.start - 2))
            return {.date = {}, .end = three.end};
        if (touchesWord(three.end) && !(text_[three.end] == u'T' && isNumber(three.end + 1)))
            return {.date = {}, .end = three.end};
        if (yearFirst)
            return {.date = QDate(one.number, two.number, three.number), .end = three.end};
        const bool isOpen = one.number <= 12 && two.number <= 12;
        const bool dayLeads = isOpen ? separator == u'.' || isDayFirst(locale_) : one.number > 12;
        return {.date = dayLeads ? QDate(three.number, two.number, one.number)
                                 : QDate(three.number, one.number, two.number),
                .end = three.end};
    }

    [[nodiscard]] Piece after(const Piece& piece, QChar separator) const {
        if (piece.size() == 0 || piece.end >= text_.size() || text_[piece.end] != separator)
            return {};
        if (separator == u'.')
            return next(piece, ". "_L1);
        return isNumber(piece.end + 1) ? pieceFrom(piece.end + 1) : Piece{};
    }

    /// "12 March 2026", "1st of March, 2026", "12. März 2026", "12-Mar-2026"
    [[nodiscard]] Found dayFirst(const Piece& day) const {
        static constexpr std::array<QStringView, 9> endings{u"st", u"nd", u"rd", u"th", u"er",
                                                            u"º",  u"ª",  u"o",  u"e"};
        static constexpr std::array<QStringView, 4> fillers{u"of", u"de", u"del", u"d"};
        if (!day.isDay() || touchesWord(day.start - 1))
            return {};
        Piece word = next(day, " .,-/"_L1);
        if (word.start == day.end && isOneOf(word, endings))
            word = next(word, " .,-/"_L1);
        if (isOneOf(word, fillers))
            word = next(word, " '"_L1);
        const int inMonth = month(word);
        return inMonth == 0 ? Found() : withYear(word, day.number, inMonth);
    }

    /// "March 12, 2026", "Mar. 12th 2026", "March 2026"
    [[nodiscard]] Found monthFirst(const Piece& word) const {
        static constexpr std::array<QStringView, 4> endings{u"st", u"nd", u"rd", u"th"};
        const int inMonth = month(word);
        if (inMonth == 0 || isNumber(word.start - 1))
            return {};
        const Piece number = next(word, " .,-/"_L1);
        if (number.isYear() || number.isWord())
            return withYear(word, 1, inMonth);
        if (!number.isDay())
            return {};
        const Piece ending = next(number, ""_L1);
        const bool isEnded = ending.isWord() && isOneOf(ending, endings);
        return withYear(isEnded ? ending : number, number.number, inMonth);
    }

    [[nodiscard]] Found withYear(const Piece& before, int day, int inMonth) const {
        static constexpr std::array<QStringView, 3> fillers{u"of", u"de", u"del"};
        Piece year = next(before, " .,-/"_L1);
        if (year.isWord() && isOneOf(year, fillers))
            year = next(year, " "_L1);
        if (!year.isYear() || touchesWord(year.end))
            return {};
        return {.date = QDate(year.number, inMonth, day), .end = year.end};
    }

    [[nodiscard]] QStringView text() const { return text_; }

    const QString& text_;
    const QLocale& locale_;
    const QHash<QString, int> months_;
};

} // namespace

std::optional<QDate> firstDate(const QString& text, const QLocale& locale) {
    return DateSearch(text, locale).first();
}

} // namespace quillon

#include "assistant/SuggestionReason.h"

#include "assistant/ByteCount.h"
#include "store/Sentences.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QDate localDay(Timestamp moment) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
    return QDateTime::fromSecsSinceEpoch(seconds.count()).date();
}

/// "the oldest from March"
QString ageText(Timestamp oldest, Timestamp now) {
    const QDate day = localDay(oldest);
    const QDate today = localDay(now);
    if (day >= today)
        return u"all from today"_s;
    if (day > today.addDays(-7))
        return u"all from the last days"_s;
    if (day.year() == today.year() && day.month() == today.month())
        return u"all from this month"_s;
    const bool namesYear = day <= today.addMonths(-11);
    return u"the oldest from "_s + QLocale::c().toString(day, namesYear ? u"MMMM yyyy" : u"MMMM");
}

/// "JPG, PNG and GIF"
QString listed(const QStringList& extensions) {
    QStringList names;
    for (const QString& extension : extensions)
        names.append(extension.toUpper());
    const QString last = names.takeLast();
    return names.isEmpty() ? last : names.join(u", "_s) + u" and "_s + last;
}

} // namespace

QString suggestionReason(const RuleSuggestion& suggestion,
                         std::span<const ListedFile* const> caught, Timestamp now) {
    const std::size_t count = caught.size();
    const auto modified = [](const ListedFile* file) { return file->status.modified; };
    const QString age =
        u", "_s + ageText(std::ranges::min(caught, {}, modified)->status.modified, now) + u'.';
    std::uint64_t bytes = 0;
    for (const ListedFile* file : caught)
        bytes += file->status.size;
    switch (suggestion.topic) {
    case SuggestionTopic::screenshots:
        return counted(count, u"screenshot"_s) + age;
    case SuggestionTopic::invoices:
        return QString::number(count) + u" invoices and receipts"_s + age;
    case SuggestionTopic::installers:
        return u"%1 that nobody has opened for a month, %2 that would go to the trash."_s.arg(
            counted(count, u"installer"_s), byteCount(bytes));
    case SuggestionTopic::archives:
        return counted(count, u"archive"_s) + age;
    case SuggestionTopic::largeFiles:
        return u"%1 of over 100 MB that nobody has opened for half a year, %2 in all."_s.arg(
            counted(count, u"file"_s), byteCount(bytes));
    case SuggestionTopic::host:
        return u"%1 from %2"_s.arg(counted(count, u"file"_s), suggestion.subjects.value(0)) + age;
    case SuggestionTopic::extension:
        break;
    }
    return counted(count, listed(suggestion.subjects) + u" file"_s) + age;
}

} // namespace quillon

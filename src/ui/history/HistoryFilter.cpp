#include "ui/history/HistoryFilter.h"

#include <algorithm>

namespace quillon {

bool HistoryFilter::isOpen() const {
    return QStringView(words).trimmed().isEmpty() && !folderID && outcome == Outcome::any;
}

bool HistoryFilter::matches(const LogEntry& entry) const {
    const bool isWanted = outcome == Outcome::any || entry.isError == (outcome == Outcome::errors);
    return isWanted && matchesSubject(entry);
}

bool HistoryFilter::matchesSubject(const LogEntry& entry) const {
    if (folderID && entry.folderID != folderID)
        return false;
    const QList<QStringView> wanted = QStringView(words).split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(wanted, [&](QStringView word) {
        return std::ranges::any_of(
            std::to_array<const QString*>(
                {&entry.fileName, &entry.ruleName, &entry.folderName, &entry.actionSummary}),
            [&](const QString* text) { return text->contains(word, Qt::CaseInsensitive); });
    });
}

} // namespace quillon

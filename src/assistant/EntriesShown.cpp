#include "assistant/EntriesShown.h"

#include <algorithm>
#include <iterator>

namespace quillon {
namespace {

constexpr std::size_t mostOfRules = 3;

bool isPartOfWord(const QString& text, qsizetype index) {
    return index >= 0 && index < text.size() && text[index].isLetterOrNumber();
}

/// Whether the text has the name as words of its own, not as a part of others.
bool speaksOf(const QString& text, const QString& name) {
    if (name.isEmpty())
        return false;
    for (qsizetype at = text.indexOf(name, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(name, at + 1, Qt::CaseInsensitive))
        if (!isPartOfWord(text, at - 1) && !isPartOfWord(text, at + name.size()))
            return true;
    return false;
}

QString presentName(const LogEntry& entry) {
    return entry.currentPath ? entry.currentPath->section(u'/', -1) : QString();
}

} // namespace

std::vector<LogEntry> entriesShown(const QString& answer, const std::vector<LogEntry>& entries) {
    std::vector<LogEntry> shown;
    std::ranges::copy_if(entries, std::back_inserter(shown), [&](const LogEntry& entry) {
        return speaksOf(answer, entry.fileName) || speaksOf(answer, presentName(entry));
    });
    if (!shown.empty())
        return shown;
    for (const LogEntry& entry : entries)
        if (shown.size() < mostOfRules && speaksOf(answer, entry.ruleName))
            shown.push_back(entry);
    return shown;
}

} // namespace quillon

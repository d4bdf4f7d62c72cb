#pragma once

#include "model/LogEntry.h"

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <vector>

namespace quillon {

struct RelevantEntries {
    std::vector<LogEntry> entries; ///< the most relevant first
    std::size_t matching = 0;      ///< how many there are in all
};

/// The entries that a question is about, the most relevant first and at most `limit`. Entries count
/// by the question's words in the file's name, the rule's, where it went and the folder's, rare
/// words for more than frequent ones, and recent entries for more than old ones. A time in the
/// question ("yesterday", in the time zone of `now`) leaves out all other entries, unless only
/// those have the words. Newest first for a question about a time alone, or about nothing in
/// particular; none when the words are nowhere. Any thread.
[[nodiscard]] RelevantEntries relevantEntries(const QString& question,
                                              const std::vector<LogEntry>& logs,
                                              const QDateTime& now, std::size_t limit);

} // namespace quillon

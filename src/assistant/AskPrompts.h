#pragma once

#include "assistant/RuleConflicts.h"
#include "model/LogEntry.h"
#include "model/WatchedFolder.h"

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <vector>

namespace quillon {

/// Who Dobbin is, what he may say, and how Quillon works, on the day of `now`.
[[nodiscard]] QString systemPrompt(const QDateTime& now);

/// How long a composed message may be, by estimatedTokens().
enum class MessageSize : std::size_t { onDevice = 2300, claude = 24000 };

// What a local model has room for, likewise: its context, of which the system prompt and a message
// take their part, and what is kept for earlier turns and for the answer.
inline constexpr std::size_t onDeviceContext = 4096;
inline constexpr std::size_t onDeviceEarlierTurns = 400;
inline constexpr std::size_t onDeviceAnswer = 400;

/// What the model gets with a question: the entries, the rules of every folder, the conflicts and
/// the question, each name and text on a line of its own and cut when long. What doesn't fit is
/// left out, the least important first: sentences of the rules of folders that neither an entry nor
/// the question is about, then those rules, then the last of the entries; how many rules are left
/// out is said, and so is how many entries match in all, `matching`, when not all of them are
/// there. The question comes last and is never left out. Dates are local. Any thread.
[[nodiscard]] QString compose(const QString& question, const std::vector<LogEntry>& entries,
                              const std::vector<WatchedFolder>& folders,
                              const std::vector<RuleConflict>& conflicts,
                              MessageSize most = MessageSize::claude, std::size_t matching = 0);

} // namespace quillon

#pragma once

#include "cli/LineBuffer.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "store/JsonStream.h"
#include "store/RunReport.h"

#include <vector>

namespace quillon {

/// What the runs that a command has set off have done, a paragraph a folder; several runs of one
/// folder are told as one. Whatever went wrong with a run as a whole goes to `err`. `someFailed`
/// when a file failed, or a run did not come to its end, or could not be saved.
[[nodiscard]] ExitCode tellRuns(const std::vector<RunReport>& reports, const Console& console);

/// The part of that which goes to `out`.
void addRuns(const std::vector<RunReport>& reports, LineBuffer& lines);
/// The part which goes to `err`.
[[nodiscard]] ExitCode sayHowRunsEnded(const std::vector<RunReport>& reports,
                                       const Console& console);

/// The same as a list of objects on `out`.
[[nodiscard]] ExitCode tellRunsAsJson(const std::vector<RunReport>& reports,
                                      const Console& console);

/// That list, where a value is expected.
void writeRuns(JsonStream& json, const std::vector<RunReport>& reports, std::ostream& out);

/// Says which of a run's entries undo won't reach, where there are so many.
void addReach(const std::vector<LogEntry>& entries, LineBuffer& lines);

/// One line a file.
void addEntries(const std::vector<LogEntry>& entries, LineBuffer& lines);

[[nodiscard]] std::size_t failedEntries(const std::vector<LogEntry>& entries);

/// Says on `err` why a run did not come to its end or could not be saved; true when that is so.
[[nodiscard]] bool sayProblems(const RunResult& run, const std::optional<Error>& unsaved,
                               const Console& console);

} // namespace quillon

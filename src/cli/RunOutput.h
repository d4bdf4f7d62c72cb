#pragma once

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

/// The same as a list of objects on `out`.
[[nodiscard]] ExitCode tellRunsAsJson(const std::vector<RunReport>& reports,
                                      const Console& console);

} // namespace quillon

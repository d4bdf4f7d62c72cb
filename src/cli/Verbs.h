#pragma once

#include "cli/Options.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

namespace quillon {

// What each verb does, one file each. Results go to the console's `out`, one sentence about
// whatever went wrong to its `err`.

[[nodiscard]] ExitCode tidyCommand(const FolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode previewCommand(const FolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode probeCommand(const FolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode checkCommand(const CheckOptions&, const Console&, Services&);
[[nodiscard]] ExitCode logCommand(const LogOptions&, const Console&, Services&);
[[nodiscard]] ExitCode undoCommand(const UndoOptions&, const Console&, Services&);

} // namespace quillon

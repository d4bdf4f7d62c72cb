#pragma once

#include "service/CommandConnection.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

namespace quillon {

/// Lives on as the one instance until this process is asked to end: watches, keeps schedules, and
/// carries out with `run` what other commands ask for. Says what happens on the console's `err`. A
/// first request to end lets the runs under way end; a second one makes them end after the file
/// that they are at. When the application asks for its place it gives it, and takes it again once
/// that has ended. With `waits` it begins by waiting for another instance to end. On a command's
/// thread, within onCommandThread().
[[nodiscard]] ExitCode runAgent(const Console& console, Services& services,
                                const CommandRunner& run, bool waits = false);

} // namespace quillon

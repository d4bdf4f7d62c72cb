#pragma once

#include "platform/Error.h"

namespace quillon {

/// Gives up for good, before anything from a stranger is parsed, whatever parsing does not need.
/// From then on this process
/// - opens nothing, on disk or network, not even for reading, and asks for no new descriptor;
/// - writes to standard output and standard error alone;
/// - starts no process, no thread and no program, signals and watches nobody, and gets no new code
///   into its memory;
/// - ends when its parent does, uses 512 MiB of addresses and 10 seconds of processor at most, and
///   leaves no core.
/// What is refused fails with an error; the process goes on. Everything that has to be loaded must
/// be loaded before. To be called while there is one thread. Fails when the kernel can't do it:
/// then nothing may be parsed.
[[nodiscard]] Expected<void> confineThisProcess();

} // namespace quillon

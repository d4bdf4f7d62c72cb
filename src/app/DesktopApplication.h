#pragma once

namespace quillon {

/// Runs the desktop application until the user quits it, and returns the process's exit code.
[[nodiscard]] int runDesktopApplication(int argc, char** argv);

} // namespace quillon

#pragma once

namespace quillon {

struct StandardStreams {
    bool outputIsTerminal = false;
    bool errorIsTerminal = false;
};

/// To be called first thing in main: opens the null device in place of a standard stream that the
/// caller has closed, since the next file to be opened would otherwise be taken for that stream.
[[nodiscard]] StandardStreams openStandardStreams();

} // namespace quillon

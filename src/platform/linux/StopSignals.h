#pragma once

namespace quillon {

/// From now on the first request to end (an interrupt from the terminal, a hang-up, a termination)
/// is only noted; a second one ends the process as usual. To be called once, from main.
void noteStopSignals();

/// Whether such a request has come. Any thread.
[[nodiscard]] bool wasAskedToStop();

} // namespace quillon

#pragma once

namespace quillon {

/// From now on the first request to end (an interrupt from the terminal, a hang-up, a termination)
/// is only noted; a second one ends the process as usual. To be called once, from main.
void noteStopSignals();

/// As above, but later requests are only noted as well.
void noteEveryStopSignal();

/// Whether such a request has come. Any thread.
[[nodiscard]] bool wasAskedToStop();

/// Can be read from once a request has come; -1 before anything is noted. For an event loop.
[[nodiscard]] int stopSignalDescriptor();

/// How many requests have come since the last call.
[[nodiscard]] int takeStopSignals();

/// Writing to a pipe that nobody reads any more fails from now on, and ends nothing.
void ignoreBrokenPipes();

} // namespace quillon

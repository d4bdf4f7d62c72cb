#pragma once

#include "service/Console.h"
#include "service/ExitCode.h"

namespace quillon {

/// Says why the store can't be opened and returns the code that goes with it.
[[nodiscard]] inline ExitCode sayStoreFailure(const Error& error, const Console& console) {
    console.say(error);
    return error.kind == ErrorKind::timedOut ? ExitCode::unreachable : ExitCode::unreadable;
}

} // namespace quillon

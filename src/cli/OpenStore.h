#pragma once

#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

#include <expected>

namespace quillon {

/// The store for changing. Says why when it can't be opened, and what was found when it was.
[[nodiscard]] std::expected<StoreAccess, ExitCode> openStoreFor(const Console& console,
                                                                Services& services);

/// The store for reading, likewise.
[[nodiscard]] std::expected<StoreSnapshot, ExitCode> viewStoreFor(const Console& console,
                                                                  Services& services);

/// To be called once a command has changed what it was to change. Says so when the last save has
/// failed, and returns the code with which the command ends.
[[nodiscard]] ExitCode sayWhetherSaved(const StoreAccess& store, const Console& console);

} // namespace quillon

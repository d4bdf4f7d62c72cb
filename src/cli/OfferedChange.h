#pragma once

#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

#include <cstddef>

namespace quillon {

/// Carries out a change, numbered from 1, of the newest answer in the conversation that offers any,
/// and shows what has come of it: what the run did, the folder's rules as they are now, or the rule
/// that was written, which is not saved.
[[nodiscard]] ExitCode carryOutOffer(std::size_t number, bool json, const StoreAccess& store,
                                     const Console& console, Services& services);

} // namespace quillon

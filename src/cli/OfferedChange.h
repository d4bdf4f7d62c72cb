#pragma once

#include "assistant/ChatTurn.h"
#include "cli/Options.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

namespace quillon {

/// The beginning of an answer's id, as it is shown.
[[nodiscard]] QString shortID(const ChatTurn& answer);

/// Says which change it is, carries it out and shows what has come of it: what the run did, the
/// folder's rules as they are now, or the rule that was written, which is not saved.
[[nodiscard]] ExitCode carryOutOffer(const AskOptions& options, const StoreAccess& store,
                                     const Console& console, Services& services);

} // namespace quillon

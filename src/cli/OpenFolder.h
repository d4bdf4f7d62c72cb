#pragma once

#include "model/WatchedFolder.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

#include <expected>
#include <functional>
#include <string>

namespace quillon {

/// A watched folder that a command changes: the store, and the folder as it was found.
struct OpenFolder {
    StoreAccess store;
    WatchedFolder folder;
};

/// Says why when the store can't be opened or the folder is not watched.
[[nodiscard]] std::expected<OpenFolder, ExitCode>
openFolder(const std::string& path, const Console& console, Services& services);

/// The same for a command that only reads.
[[nodiscard]] std::expected<WatchedFolder, ExitCode>
viewFolder(const std::string& path, const Console& console, Services& services);

/// Makes a change that sets off runs and waits for them. Prints the sentences and what the runs
/// did, or, as JSON, only these. What couldn't be saved is told without the sentences.
[[nodiscard]] ExitCode changeAndRun(const StoreAccess& store,
                                    const std::function<void(AppStore&)>& change,
                                    const QStringList& sentences, bool json,
                                    const Console& console);

} // namespace quillon

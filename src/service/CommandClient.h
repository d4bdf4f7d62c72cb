#pragma once

#include "platform/UserFolders.h"
#include "platform/linux/LocalSocket.h"
#include "service/Console.h"
#include "service/ExitCode.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Where a running instance of this user listens.
[[nodiscard]] std::string controlSocketPath(const UserFolders& folders);

struct ClientOptions {
    /// How long an instance may say nothing before it counts as hung.
    std::chrono::milliseconds patience{5000};
    unsigned user = thisUser(); ///< whose instance to trust
};

/// Has the running instance that keeps these folders' data carry a command line out, and returns
/// how that ended; nothing when there is no such instance. Waits.
[[nodiscard]] std::optional<ExitCode>
carriedOutByInstance(const std::vector<std::string>& arguments, const Console& console,
                     const UserFolders& folders, const ClientOptions& options = {});

/// The process of the running instance that keeps these folders' data; nothing when there is none,
/// or when it says nothing. Waits.
[[nodiscard]] std::optional<int> instanceProcess(const UserFolders& folders,
                                                 const ClientOptions& options = {});

} // namespace quillon

#pragma once

#include "platform/linux/RemoteFileSystems.h"

#include <QString>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// How folders are watched.
struct WatchingOptions {
    /// How far apart batches of changes are, at least.
    std::chrono::milliseconds latency{600};
    /// How often folders are looked at whose changes aren't reported.
    std::chrono::milliseconds pollInterval{30'000};
    /// The greatest number of folders that may be watched, besides the system's own limit.
    std::function<std::size_t()> maxWatches = {};
    /// As remoteKind().
    std::function<std::optional<QString>(const std::string& path)> remoteKind = quillon::remoteKind;
    /// As remoteKindWithin().
    std::function<std::optional<QString>(const std::string& path)> remoteKindWithin =
        quillon::remoteKindWithin;
};

} // namespace quillon

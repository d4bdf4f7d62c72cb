#pragma once

#include "platform/linux/Descriptor.h"

#include <cstdint>
#include <future>
#include <memory>
#include <string>

namespace quillon {

/// A number that changes when something in the visible tree of the folder does: a name, or the size
/// or date of a file. Links are not followed, but for the root; 0 when there is no folder.
[[nodiscard]] std::uint64_t folderSnapshot(const std::string& path);

/// The same on a thread of its own, which then adds to the event descriptor. A drive that has gone
/// may never answer; the thread is left behind when nobody wants its answer any more. Not valid
/// when there can be no thread.
[[nodiscard]] std::future<std::uint64_t>
folderSnapshotLater(const std::string& path, const std::shared_ptr<const Descriptor>& wake);

} // namespace quillon

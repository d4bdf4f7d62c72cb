#pragma once

#include "platform/linux/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quillon {

/// One message of the kernel about a watched folder.
struct InotifyEvent {
    int watch = -1; ///< -1 when the kernel's queue was full and messages were lost
    std::uint32_t mask = 0;
    std::string name = {}; ///< the entry in the folder; empty for the folder itself

    [[nodiscard]] bool isHidden() const { return name.starts_with('.'); }
};

/// The kernel's watches of folders and its queue of messages. A watch belongs to a folder, not to a
/// path, and may have several holders. One thread.
class InotifyQueue {
public:
    /// `limit`, when there is one, is the greatest number of watches besides the system's own
    /// limit.
    explicit InotifyQueue(std::function<std::size_t()> limit);

    /// 0, or the errno value that says why there is no queue.
    [[nodiscard]] int error() const { return error_; }
    /// Tries again where there is no queue; whether there is one now.
    bool reopen();
    /// Readable when there are messages.
    [[nodiscard]] int descriptor() const { return queue_.get(); }

    /// What a holder wants to hear of.
    enum class Interest : std::uint8_t {
        entries,  ///< everything that happens to the folder and its entries, links not followed
        root,     ///< the same of the folder that a path leads to, through links too
        location, ///< that the folder that a path leads to goes elsewhere
    };

    /// The watch of the folder at `path`, which has one more holder now; or an errno value,
    /// negative. It hears of what any of its holders has wanted.
    [[nodiscard]] int hold(const std::string& path, Interest interest);
    void release(int watch);

    /// The greatest number of watches as of now; the system's is shared with other programs.
    [[nodiscard]] std::size_t limit() const;

    /// What has come so far, up to a bufferful; never waits.
    [[nodiscard]] std::vector<InotifyEvent> read();

private:
    std::function<std::size_t()> limit_;
    Descriptor queue_;
    int error_ = 0;
    std::unordered_map<int, unsigned> holders_;
    std::vector<char> buffer_;
};

} // namespace quillon

#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <unordered_map>

namespace quillon {

/// Remembers up to which number the names beside a wanted one are taken, so that thousands of files
/// of one name don't each try every number from 2. What it knows of a folder holds only while
/// nobody else changes that folder. Any thread.
class NumberHints {
public:
    /// To be called before a placement in `folder`: forgets what somebody else's change made
    /// doubtful.
    void check(const std::string& folder);

    /// The first number worth trying once `wanted` itself is taken: 2 unless more is known.
    [[nodiscard]] unsigned next(const std::string& wanted);

    /// To be called after a placement: `wanted` was asked for and got `number`, 1 being the name
    /// itself.
    void placed(const std::string& wanted, unsigned number);

private:
    struct FolderHints {
        std::uint64_t modified = 0; ///< the folder's modification time, to be compared only
        std::unordered_map<std::string, unsigned> next;
    };

    std::mutex mutex_;
    std::unordered_map<std::string, FolderHints> folders_;
};

} // namespace quillon

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
    /// The first number worth trying: 1, the wanted name itself, unless more is known.
    [[nodiscard]] unsigned firstToTry(const std::string& wanted);

    /// To be called after each placement: `wanted` was asked for and got `number`.
    void placed(const std::string& wanted, unsigned number);

private:
    struct FolderHints {
        std::int64_t modified = 0; ///< the folder's modification time in nanoseconds
        std::unordered_map<std::string, unsigned> next;
    };

    std::mutex mutex_;
    std::unordered_map<std::string, FolderHints> folders_;
};

} // namespace quillon

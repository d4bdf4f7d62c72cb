#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace quillon {

/// Of `tidy`, `preview` and `probe`.
struct FolderOptions {
    std::string folder;
    std::string rules; ///< a file, or "-" for standard input
    bool isRecursive = false;
    bool skipOnlineOnly = false;
    double settleSeconds = 3;
    bool json = false;
};

struct CheckOptions {
    std::string rules; ///< as above
    bool json = false;
};

struct LogOptions {
    bool errorsOnly = false;
    std::optional<std::size_t> limit;
    bool json = false;
};

/// Exactly one of the first three is given.
struct UndoOptions {
    std::string entry; ///< a UUID or the beginning of one
    std::string batch; ///< likewise
    bool last = false;
    bool json = false;
};

} // namespace quillon

#pragma once

#include "platform/Error.h"
#include "platform/linux/Descriptor.h"

#include <dirent.h>
#include <memory>
#include <string_view>

namespace quillon {

/// Reads the names in one folder, in the order the file system gives them, without "." and "..".
class FolderReader {
public:
    /// Takes the descriptor of a folder opened for reading.
    [[nodiscard]] static Expected<FolderReader> open(Descriptor folder);

    /// The next entry, or null at the end or after an error. Valid until the next call.
    [[nodiscard]] const dirent* next();

    /// The errno value that ended the reading; 0 when it came to the end.
    [[nodiscard]] int error() const { return error_; }

    /// The folder's descriptor, owned by the reader.
    [[nodiscard]] int folder() const { return ::dirfd(stream_.get()); }

private:
    struct Close {
        void operator()(DIR* stream) const { ::closedir(stream); }
    };

    explicit FolderReader(DIR* stream) : stream_(stream) {}

    std::unique_ptr<DIR, Close> stream_;
    int error_ = 0;
};

/// Opens the folder `path` below `base` one component at a time, never through a link. An empty
/// path is `base` itself. `flags` are for the last component: O_RDONLY or O_PATH.
[[nodiscard]] Expected<Descriptor> openFolderBelow(int base, std::string_view path, int flags);

} // namespace quillon

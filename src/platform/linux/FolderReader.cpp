#include "platform/linux/FolderReader.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <fcntl.h>
#include <string>

namespace quillon {

Expected<FolderReader> FolderReader::open(Descriptor folder) {
    DIR* const stream = ::fdopendir(folder.get());
    if (stream == nullptr) {
        return systemFailure(errno);
    }
    (void)folder.release();
    return FolderReader(stream);
}

const dirent* FolderReader::next() {
    for (;;) {
        errno = 0;
        const dirent* const entry = ::readdir(stream_.get());
        if (entry == nullptr) {
            error_ = errno;
            return nullptr;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            return entry;
        }
    }
}

Expected<Descriptor> openFolderBelow(int base, std::string_view path, int flags) {
    constexpr int always = O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    Descriptor folder;
    do {
        const std::size_t slash = path.find('/');
        const std::string component(path.empty() ? "." : path.substr(0, slash));
        path = slash == std::string_view::npos ? std::string_view{} : path.substr(slash + 1);
        const int from = folder.isOpen() ? folder.get() : base;
        Descriptor next(
            ::openat(from, component.c_str(), (path.empty() ? flags : O_PATH) | always));
        if (!next.isOpen()) {
            return systemFailure(errno);
        }
        folder = std::move(next);
    } while (!path.empty());
    return folder;
}

} // namespace quillon

#include "platform/linux/FolderTrail.h"

#include "platform/FileNames.h"
#include "platform/linux/SystemError.h"

#include <fcntl.h>

namespace quillon {

namespace {

constexpr std::size_t mostSteps = 16;
constexpr int flags = O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

bool leadsTo(const std::string& folder, const std::string& path) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

} // namespace

Expected<int> FolderTrail::find(const std::string& path) {
    while (!steps_.empty() && !leadsTo(steps_.back().path, path)) {
        steps_.pop_back();
    }
    while (!path.empty() && (steps_.empty() || steps_.back().path != path)) {
        const std::size_t start = steps_.empty() ? 0 : steps_.back().path.size() + 1;
        const std::size_t end = std::min(path.find('/', start), path.size());
        const int above = steps_.empty() ? base_ : steps_.back().folder.get();
        Descriptor next(::openat(above, path.substr(start, end - start).c_str(), O_PATH | flags));
        if (!next.isOpen()) {
            return systemFailure(errno);
        }
        steps_.push_back({path.substr(0, end), std::move(next)});
        if (steps_.size() > mostSteps) {
            steps_.pop_front();
        }
    }
    return steps_.empty() ? base_ : steps_.back().folder.get();
}

Expected<Descriptor> FolderTrail::openForReading(const std::string& path) {
    const Expected<int> above = find(std::string(parentPath(path)));
    if (!above) {
        return std::unexpected(above.error());
    }
    const std::string name(path.empty() ? "." : lastComponent(path));
    Descriptor folder(::openat(*above, name.c_str(), O_RDONLY | flags));
    if (!folder.isOpen()) {
        return systemFailure(errno);
    }
    return folder;
}

} // namespace quillon

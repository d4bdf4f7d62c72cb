#include "platform/linux/WatchTree.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <set>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <utility>

namespace quillon {

namespace {

bool isLackOfWatches(int error) {
    return error == ENOSPC || error == ENOMEM;
}

bool isLater(const timespec& one, const timespec& other) {
    return std::pair(one.tv_sec, one.tv_nsec) > std::pair(other.tv_sec, other.tv_nsec);
}

} // namespace

WatchTree::WatchTree(InotifyQueue& queue, std::string root, int rootWatch)
    : queue_(queue), root_(std::move(root)), top_{.name = {}, .watch = rootWatch} {
    byWatch_[rootWatch] = &top_;
}

WatchTree::~WatchTree() {
    release(top_);
}

bool WatchTree::Folder::isWithin(const Folder& other) const {
    for (const Folder* at = this; at != nullptr; at = at->parent) {
        if (at == &other) {
            return true;
        }
    }
    return false;
}

int WatchTree::scan(Folder& folder) {
    const std::vector<std::string> names = visibleFolders(folder);
    const std::set<std::string_view> present(names.begin(), names.end());
    std::vector<std::string> gone;
    for (const auto& [name, child] : folder.folders) {
        if (!present.contains(name)) {
            gone.push_back(name);
        }
    }
    for (const std::string& name : gone) {
        drop(folder, name);
    }
    for (const std::string& name : names) {
        const Addition child = add(folder, name);
        const int error = child.folder != nullptr ? scan(*child.folder) : child.error;
        if (error != 0) {
            return error;
        }
    }
    return 0;
}

WatchTree::Addition WatchTree::add(Folder& parent, const std::string& name) {
    const int watch = queue_.hold(joinPath(path(parent), name), InotifyQueue::Interest::entries);
    if (watch < 0) {
        // Gone again, no folder, or not to be read: its parent tells when that changes.
        drop(parent, name);
        return {.error = isLackOfWatches(-watch) ? -watch : 0};
    }
    if (const auto known = byWatch_.find(watch); known != byWatch_.end()) {
        Folder& same = *known->second;
        if (same.parent == &parent && same.name == name) {
            queue_.release(watch);
            return {.folder = &same};
        }
        if (parent.isWithin(same)) { // mounted inside of itself
            queue_.release(watch);
            return {};
        }
        // It has moved here, and the message of that is still to come.
        drop(*same.parent, std::string(same.name));
    }
    drop(parent, name);
    auto folder = std::make_unique<Folder>(Folder{.name = name, .parent = &parent, .watch = watch});
    Folder* const added = folder.get();
    byWatch_[watch] = added;
    parent.folders[name] = std::move(folder);
    return {.folder = added, .isNew = true};
}

std::vector<std::string> WatchTree::visibleFolders(const Folder& folder) {
    std::vector<std::string> names;
    const int links = folder.parent == nullptr ? 0 : O_NOFOLLOW;
    Descriptor opened(::open(path(folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | links));
    struct stat status = {};
    if (!opened.isOpen() || ::fstat(opened.get(), &status) != 0) {
        return names;
    }
    latestChange_ = isLater(status.st_ctim, latestChange_) ? status.st_ctim : latestChange_;
    Expected<FolderReader> reader = FolderReader::open(std::move(opened));
    while (const dirent* const entry = reader ? reader->next() : nullptr) {
        if (entry->d_name[0] != '.' && (entry->d_type == DT_DIR || entry->d_type == DT_UNKNOWN)) {
            names.emplace_back(entry->d_name);
        }
    }
    return names;
}

WatchTree::Outcome WatchTree::handle(const InotifyEvent& event) {
    const auto found = byWatch_.find(event.watch);
    if (found == byWatch_.end() || event.isHidden()) {
        return {};
    }
    Folder& folder = *found->second;
    if (event.name.empty()) {
        const bool isLeaving =
            (event.mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED)) != 0;
        if (&folder == &top_) {
            return {.isChange = true, .isRootGone = isLeaving};
        }
        if ((event.mask & IN_IGNORED) != 0) {
            drop(*folder.parent, std::string(folder.name));
        }
        return {.isChange = true};
    }
    Outcome outcome{.isChange = true};
    if ((event.mask & IN_ISDIR) == 0) {
        return outcome;
    }
    if ((event.mask & (IN_DELETE | IN_MOVED_FROM)) != 0) {
        drop(folder, event.name);
    } else if ((event.mask & (IN_CREATE | IN_MOVED_TO)) != 0 ||
               !folder.folders.contains(event.name)) {
        const Addition child = add(folder, event.name);
        outcome.error = child.isNew ? scan(*child.folder) : child.error;
    }
    return outcome;
}

void WatchTree::drop(Folder& parent, std::string_view name) {
    const auto found = parent.folders.find(name);
    if (found != parent.folders.end()) {
        release(*found->second);
        parent.folders.erase(found);
    }
}

void WatchTree::release(Folder& folder) {
    for (const auto& [name, child] : folder.folders) {
        release(*child);
    }
    byWatch_.erase(folder.watch);
    queue_.release(folder.watch);
}

std::string WatchTree::path(const Folder& folder) const {
    return folder.parent == nullptr ? root_ : joinPath(path(*folder.parent), folder.name);
}

} // namespace quillon

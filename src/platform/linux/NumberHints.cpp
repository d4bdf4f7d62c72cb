#include "platform/linux/NumberHints.h"

#include "platform/FileNames.h"

#include <sys/stat.h>

namespace quillon {

namespace {

/// Below this, trying every number costs less than remembering.
constexpr unsigned worthRemembering = 8;
constexpr std::size_t mostFolders = 256;

std::uint64_t modificationTime(const std::string& folder) {
    struct stat found = {};
    if (::stat(folder.c_str(), &found) != 0) {
        return 0;
    }
    return static_cast<std::uint64_t>(found.st_mtim.tv_sec) * 1'000'000'000 +
           static_cast<std::uint64_t>(found.st_mtim.tv_nsec);
}

} // namespace

void NumberHints::check(const std::string& folder) {
    const std::scoped_lock lock(mutex_);
    const auto hints = folders_.find(folder);
    if (hints != folders_.end() && hints->second.modified != modificationTime(folder)) {
        folders_.erase(hints);
    }
}

unsigned NumberHints::next(const std::string& wanted) {
    const std::scoped_lock lock(mutex_);
    const auto hints = folders_.find(std::string(parentPath(wanted)));
    if (hints == folders_.end()) {
        return 2;
    }
    const auto known = hints->second.next.find(wanted);
    return known == hints->second.next.end() ? 2 : known->second;
}

void NumberHints::placed(const std::string& wanted, unsigned number) {
    const std::scoped_lock lock(mutex_);
    std::string folder(parentPath(wanted));
    auto hints = folders_.find(folder);
    if (hints == folders_.end()) {
        if (number < worthRemembering) {
            return;
        }
        if (folders_.size() >= mostFolders) {
            folders_.clear();
        }
        hints = folders_.try_emplace(std::move(folder)).first;
    }
    hints->second.modified = modificationTime(hints->first);
    if (number >= worthRemembering) {
        hints->second.next[wanted] = number + 1;
    }
}

} // namespace quillon

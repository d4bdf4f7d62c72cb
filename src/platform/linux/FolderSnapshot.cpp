#include "platform/linux/FolderSnapshot.h"

#include "platform/FileNames.h"
#include "platform/linux/FolderReader.h"

#include <fcntl.h>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace quillon {

namespace {

std::uint64_t mixed(std::initializer_list<std::uint64_t> values) {
    std::uint64_t result = 0x9E37'79B9'7F4A'7C15;
    for (const std::uint64_t value : values) {
        result = (result ^ value) * 0xFF51'AFD7'ED55'8CCD;
        result ^= result >> 32;
    }
    return result;
}

/// Of one folder's entries, whichever order they come in. Notes the folders among them.
std::uint64_t entriesOf(const std::string& path, int flags, std::vector<std::string>& folders) {
    Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
    if (!folder.isOpen()) {
        return 0;
    }
    Expected<FolderReader> reader = FolderReader::open(std::move(folder));
    const std::uint64_t place = std::hash<std::string_view>()(path);
    std::uint64_t sum = mixed({place});
    while (const dirent* const entry = reader ? reader->next() : nullptr) {
        const std::string_view name = entry->d_name;
        struct stat status = {};
        if (name.starts_with('.') ||
            ::fstatat(reader->folder(), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            continue;
        }
        const std::uint64_t key = mixed({place, std::hash<std::string_view>()(name)});
        if (S_ISDIR(status.st_mode)) {
            folders.push_back(joinPath(path, name));
            sum += key;
        } else {
            sum += mixed({key, static_cast<std::uint64_t>(status.st_size),
                          static_cast<std::uint64_t>(status.st_mtim.tv_sec),
                          static_cast<std::uint64_t>(status.st_mtim.tv_nsec)});
        }
    }
    return sum;
}

} // namespace

std::uint64_t folderSnapshot(const std::string& path) {
    std::vector<std::string> folders;
    std::uint64_t sum = entriesOf(path, 0, folders);
    while (!folders.empty()) {
        const std::string next = std::move(folders.back());
        folders.pop_back();
        sum += entriesOf(next, O_NOFOLLOW, folders);
    }
    return sum;
}

std::future<std::uint64_t> folderSnapshotLater(const std::string& path,
                                               const std::shared_ptr<const Descriptor>& wake) {
    std::promise<std::uint64_t> promise;
    std::future<std::uint64_t> answer = promise.get_future();
    try {
        std::thread([path, wake, promise = std::move(promise)]() mutable {
            promise.set_value(folderSnapshot(path));
            (void)::eventfd_write(wake->get(), 1);
        }).detach();
    } catch (const std::system_error&) {
        return {};
    }
    return answer;
}

} // namespace quillon

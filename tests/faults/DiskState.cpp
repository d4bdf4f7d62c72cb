#include "faults/DiskState.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/xattr.h>
#include <unistd.h>

namespace quillon::testing {
namespace {

[[noreturn]] void fail(const std::string& what, const std::string& path) {
    throw std::system_error(errno, std::generic_category(), what + " " + path);
}

std::string fileContent(const std::string& path, std::size_t size) {
    std::string content(size, '\0');
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (file < 0)
        fail("open", path);
    std::size_t have = 0;
    for (ssize_t count = 0; have < size; have += static_cast<std::size_t>(count))
        if ((count = read(file, content.data() + have, size - have)) <= 0)
            break;
    close(file);
    content.resize(have);
    return content;
}

std::string linkTarget(const std::string& path) {
    std::string target(4096, '\0');
    const ssize_t size = readlink(path.c_str(), target.data(), target.size());
    target.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return target;
}

std::map<std::string, std::string> userAttributes(const std::string& path) {
    std::map<std::string, std::string> found;
    std::string names(4096, '\0');
    const ssize_t size = llistxattr(path.c_str(), names.data(), names.size());
    for (std::size_t at = 0; size > 0 && at < static_cast<std::size_t>(size);) {
        const std::string name = names.c_str() + at;
        at += name.size() + 1;
        std::string value(4096, '\0');
        const ssize_t length = lgetxattr(path.c_str(), name.c_str(), value.data(), value.size());
        value.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
        if (name.starts_with("user."))
            found[name] = value;
    }
    return found;
}

DiskItem itemAt(const std::string& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0)
        fail("lstat", path);
    DiskItem item{.mode = status.st_mode,
                  .content = {},
                  .modified = status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec,
                  .attributes = {},
                  .device = status.st_dev,
                  .inode = status.st_ino};
    if (S_ISREG(status.st_mode)) {
        item.content = fileContent(path, static_cast<std::size_t>(status.st_size));
        item.attributes = userAttributes(path);
    } else if (S_ISLNK(status.st_mode)) {
        item.content = linkTarget(path);
    }
    return item;
}

} // namespace

DiskState readDisk(const std::vector<std::string>& folders) {
    DiskState disk;
    for (const std::string& folder : folders) {
        disk.emplace(folder, itemAt(folder));
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
            disk.emplace(entry.path(), itemAt(entry.path()));
    }
    return disk;
}

DiskTree treeAt(const DiskState& disk, const std::string& path) {
    DiskTree tree;
    if (const auto self = disk.find(path); self != disk.end())
        tree.emplace("", self->second);
    const std::string prefix = path + "/";
    for (auto at = disk.lower_bound(prefix); at != disk.end() && at->first.starts_with(prefix);
         ++at)
        tree.emplace(at->first.substr(path.size()), at->second);
    return tree;
}

bool isSameItem(const DiskItem& left, const DiskItem& right, Likeness likeness) {
    if ((left.mode & S_IFMT) != (right.mode & S_IFMT) || left.content != right.content)
        return false;
    if (likeness == Likeness::contents || left.isLink())
        return true;
    return left.mode == right.mode && (left.isFolder() || (left.modified == right.modified &&
                                                           left.attributes == right.attributes));
}

bool isTreeAt(const DiskState& disk, const std::string& path, const DiskTree& tree,
              Likeness likeness) {
    const DiskTree found = treeAt(disk, path);
    return !tree.empty() && std::equal(tree.begin(), tree.end(), found.begin(), found.end(),
                                       [likeness](const auto& left, const auto& right) {
                                           return left.first == right.first &&
                                                  isSameItem(left.second, right.second, likeness);
                                       });
}

void writeItem(const std::string& path, const DiskItem& item) {
    if (item.isFolder()) {
        if (mkdir(path.c_str(), item.mode & 07777) != 0 && errno != EEXIST)
            fail("mkdir", path);
        return;
    }
    if (item.isLink()) {
        if (symlink(item.content.c_str(), path.c_str()) != 0)
            fail("symlink", path);
        return;
    }
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        fail("create", path);
    const timespec modified{item.modified / 1'000'000'000, item.modified % 1'000'000'000};
    const timespec times[2] = {{0, UTIME_OMIT}, modified};
    bool good = write(file, item.content.data(), item.content.size()) ==
                static_cast<ssize_t>(item.content.size());
    for (const auto& [name, value] : item.attributes)
        if (fsetxattr(file, name.c_str(), value.data(), value.size(), 0) != 0)
            good = good && errno == EOPNOTSUPP;
    good = good && fchmod(file, item.mode & 07777) == 0 && futimens(file, times) == 0;
    close(file);
    if (!good)
        fail("write", path);
}

void removeTree(const std::string& path) {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

} // namespace quillon::testing

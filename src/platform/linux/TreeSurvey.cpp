#include "platform/linux/TreeSurvey.h"

#include "platform/FileNames.h"
#include "platform/linux/FileContents.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

class Surveyor {
public:
    Surveyor(int folder, const std::string& root, bool mustBeRemovable)
        : folder_(folder), root_(root), trail_(folder), mustBeRemovable_(mustBeRemovable) {}

    Expected<TreeSurvey> run() {
        const Expected<FileStatus> status = statusAt(folder_, root_);
        if (!status) {
            return std::unexpected(status.error());
        }
        device_ = status->device;
        Expected<void> taken = take({}, *status);
        while (taken && !pending_.empty()) {
            const std::string path = std::move(pending_.back());
            pending_.pop_back();
            taken = readFolder(path);
        }
        if (!taken) {
            return std::unexpected(taken.error());
        }
        std::sort(survey_.begin(), survey_.end(),
                  [](const auto& left, const auto& right) { return left.path < right.path; });
        return std::move(survey_);
    }

private:
    Expected<void> take(std::string path, const FileStatus& status) {
        if (status.type == FileType::special) {
            return failure(ErrorKind::wrongType,
                           path.empty()
                               ? QStringLiteral("it is a pipe, socket or device")
                               : QStringLiteral("there is a pipe, socket or device in it"));
        }
        if (status.device != device_) {
            return failure(ErrorKind::unsupported,
                           QStringLiteral("another disk is mounted inside of it"));
        }
        if (status.type == FileType::directory) {
            pending_.push_back(path);
        }
        survey_.push_back({std::move(path), status});
        return {};
    }

    Expected<void> readFolder(const std::string& path) {
        Expected<Descriptor> opened = trail_.openForReading(joinPath(root_, path));
        Expected<FolderReader> reader =
            opened ? FolderReader::open(std::move(*opened)) : std::unexpected(opened.error());
        if (!reader) {
            return std::unexpected(reader.error());
        }
        bool isEmpty = true;
        while (const dirent* const entry = reader->next()) {
            isEmpty = false;
            const Expected<FileStatus> status = statusAt(reader->folder(), entry->d_name);
            if (!status) {
                return std::unexpected(status.error());
            }
            if (Expected<void> taken = take(joinPath(path, entry->d_name), *status); !taken) {
                return taken;
            }
        }
        if (reader->error() != 0) {
            return systemFailure(reader->error());
        }
        const bool isLocked = mustBeRemovable_ && !isEmpty &&
                              ::faccessat(reader->folder(), ".", W_OK | X_OK, AT_EACCESS) != 0;
        return isLocked ? systemFailure(errno) : Expected<void>{};
    }

    int folder_;
    const std::string& root_;
    FolderTrail trail_;
    bool mustBeRemovable_;
    std::uint64_t device_ = 0;
    TreeSurvey survey_;
    std::vector<std::string> pending_;
};

bool hasSameFile(const TreeCursor::Place& one, const TreeCursor::Place& other, std::uint64_t size) {
    const Expected<Descriptor> first = openForReading(one.folder, one.name);
    const Expected<Descriptor> second = openForReading(other.folder, other.name);
    if (!first || !second) {
        return false;
    }
    return haveSameBytes(first->get(), second->get(), size).value_or(false);
}

bool hasSameTarget(const TreeCursor::Place& one, const TreeCursor::Place& other) {
    const Expected<std::string> first = linkTarget(one.folder, one.name);
    const Expected<std::string> second = linkTarget(other.folder, other.name);
    return first && second && *first == *second;
}

bool hasSameEntry(TreeCursor& one, const SurveyedEntry& first, TreeCursor& other,
                  const SurveyedEntry& second) {
    if (first.status.type == FileType::directory) {
        return true;
    }
    const Expected<TreeCursor::Place> left = one.find(first.path);
    const Expected<TreeCursor::Place> right = other.find(second.path);
    if (!left || !right) {
        return false;
    }
    return first.status.type == FileType::symbolicLink
               ? hasSameTarget(*left, *right)
               : hasSameFile(*left, *right, first.status.size);
}

} // namespace

Expected<TreeSurvey> surveyTree(int folder, const std::string& root, bool mustBeRemovable) {
    return Surveyor(folder, root, mustBeRemovable).run();
}

bool isUnchanged(const TreeSurvey& before, const TreeSurvey& now) {
    return std::equal(before.begin(), before.end(), now.begin(), now.end(),
                      [](const SurveyedEntry& one, const SurveyedEntry& other) {
                          return one.path == other.path && isUnchanged(one.status, other.status);
                      });
}

bool haveSameContents(TreeCursor& one, const TreeSurvey& oneSurvey, TreeCursor& other,
                      const TreeSurvey& otherSurvey) {
    // Names and sizes first: they cost nothing and nearly always tell.
    const bool looksSame =
        std::equal(oneSurvey.begin(), oneSurvey.end(), otherSurvey.begin(), otherSurvey.end(),
                   [](const SurveyedEntry& first, const SurveyedEntry& second) {
                       return first.path == second.path &&
                              first.status.type == second.status.type &&
                              first.status.size == second.status.size;
                   });
    if (!looksSame) {
        return false;
    }
    for (std::size_t index = 0; index < oneSurvey.size(); ++index) {
        if (!hasSameEntry(one, oneSurvey[index], other, otherSurvey[index])) {
            return false;
        }
    }
    return true;
}

Expected<std::string> linkTarget(int folder, const std::string& name) {
    std::string target(PATH_MAX, '\0');
    const ssize_t length = ::readlinkat(folder, name.c_str(), target.data(), target.size());
    if (length < 0) {
        return systemFailure(errno);
    }
    target.resize(static_cast<std::size_t>(length));
    return target;
}

Expected<Descriptor> openForReading(int folder, const std::string& name) {
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    Descriptor file(::openat(folder, name.c_str(), flags | O_NOATIME));
    if (!file.isOpen() && errno == EPERM) { // only a file's owner may ask for that
        file = Descriptor(::openat(folder, name.c_str(), flags));
    }
    if (!file.isOpen()) {
        return systemFailure(errno);
    }
    return file;
}

} // namespace quillon

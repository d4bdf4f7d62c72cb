#include "platform/linux/EntryCopy.h"

#include "platform/linux/FileContents.h"
#include "platform/linux/FileMetadata.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"
#include "platform/linux/TreeSurvey.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

Expected<void> checkUnchanged(int file, const FileStatus& expected) {
    const Expected<FileStatus> now = statusOf(file);
    if (!now) {
        return std::unexpected(now.error());
    }
    return isUnchanged(expected, *now) ? Expected<void>{} : changedWhileCopied();
}

Expected<void> sync(int file) {
    return ::fsync(file) == 0 ? Expected<void>{} : systemFailure(errno);
}

} // namespace

Expected<void> copyRegularFile(const TreeCursor::Place& from, const TreeCursor::Place& to,
                               const FileStatus& expected, QStringList& losses) {
    const Expected<Descriptor> source = openForReading(from.folder, from.name);
    if (!source) {
        return std::unexpected(source.error());
    }
    if (Expected<void> checked = checkUnchanged(source->get(), expected); !checked) {
        return checked;
    }
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor target(::openat(to.folder, to.name.c_str(), flags, S_IRUSR | S_IWUSR));
    if (!target.isOpen()) {
        return systemFailure(errno);
    }
    Expected<void> copied = copyContents(source->get(), target.get(), expected.size);
    if (copied) {
        copied = copyMetadata(source->get(), target.get(), losses);
    }
    if (copied) {
        copied = sync(target.get());
    }
    return copied ? checkUnchanged(source->get(), expected) : copied;
}

Expected<void> copyLink(const TreeCursor::Place& from, const TreeCursor::Place& to,
                        QStringList& losses) {
    const Expected<std::string> leadsTo = linkTarget(from.folder, from.name);
    if (!leadsTo) {
        return std::unexpected(leadsTo.error());
    }
    if (::symlinkat(leadsTo->c_str(), to.folder, to.name.c_str()) != 0) {
        return systemFailure(errno);
    }
    return copyLinkMetadata(from.folder, from.name, to.folder, to.name, losses);
}

Expected<void> beginFolder(const TreeCursor::Place& to) {
    return ::mkdirat(to.folder, to.name.c_str(), S_IRWXU) == 0 ? Expected<void>{}
                                                               : systemFailure(errno);
}

Expected<void> finishFolder(const TreeCursor::Place& from, const TreeCursor::Place& to,
                            QStringList& losses) {
    const Expected<Descriptor> source = openFolderBelow(from.folder, from.name, O_RDONLY);
    const Expected<Descriptor> target = openFolderBelow(to.folder, to.name, O_RDONLY);
    if (!source || !target) {
        return std::unexpected(source ? target.error() : source.error());
    }
    Expected<void> copied = copyMetadata(source->get(), target->get(), losses);
    return copied ? sync(target->get()) : copied;
}

std::unexpected<Error> changedWhileCopied() {
    return failure(ErrorKind::changed, QStringLiteral("it changed while it was being copied"));
}

} // namespace quillon

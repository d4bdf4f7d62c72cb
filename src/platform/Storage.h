#pragma once

#include "platform/Error.h"

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <string>

namespace quillon {

/// A file of our own that only grows until it is cleared. One thread at a time.
class AppendFile {
public:
    virtual ~AppendFile() = default;

    /// Writes at the end: all of `bytes`, or, when it fails, none of them.
    [[nodiscard]] virtual Expected<void> append(const QByteArray& bytes) = 0;

    /// Returns once everything appended so far would survive a power cut.
    [[nodiscard]] virtual Expected<void> sync() = 0;

    /// Empties the file, durably.
    [[nodiscard]] virtual Expected<void> clear() = 0;
};

/// Held for as long as the object lives, and let go by the system when the process dies.
class FileLock {
public:
    virtual ~FileLock() = default;
};

/// Quillon's own files: state, journal, locks, exports. Not for users' files. Paths are absolute
/// bytes. Any thread. Errors carry the system's description.
class Storage {
public:
    virtual ~Storage() = default;

    /// The whole of a regular file. Never blocks on a pipe: anything but a regular file is
    /// `wrongType`, more than `maxBytes` is `invalid`, each with a clause for people.
    [[nodiscard]] virtual Expected<QByteArray> readWhole(const std::string& path,
                                                         std::uint64_t maxBytes) const = 0;

    /// Replaces the file as one step, mode 0600: after a crash at any moment either the old or the
    /// new contents are there. A link at `path` stays, and the file it leads to is replaced.
    [[nodiscard]] virtual Expected<void> writeDurably(const std::string& path,
                                                      const QByteArray& bytes) = 0;

    /// As writeDurably, but never replaces anything: `alreadyExists` when there is something at
    /// `path`, be it a link that leads nowhere.
    [[nodiscard]] virtual Expected<void> writeNewDurably(const std::string& path,
                                                         const QByteArray& bytes) = 0;

    /// Opens for appending, making the file (0600) where there is none.
    [[nodiscard]] virtual Expected<std::unique_ptr<AppendFile>>
    openAppend(const std::string& path) = 0;

    /// Takes the lock without waiting, making the lock file (0600) where there is none. Fails with
    /// `alreadyExists` when somebody else, in this process or another, holds it.
    [[nodiscard]] virtual Expected<std::unique_ptr<FileLock>> tryLock(const std::string& path) = 0;

    /// Removes a file of ours. Succeeds when there is none.
    [[nodiscard]] virtual Expected<void> remove(const std::string& path) = 0;

    /// Renames a file of ours to `wanted`, or to a numbered name beside it where that is taken, and
    /// returns the name it got.
    [[nodiscard]] virtual Expected<std::string> keepAside(const std::string& path,
                                                          const std::string& wanted) = 0;

    /// Removes the hidden temporaries that a copy or an unpacking of an earlier process left in
    /// `folder` when it was killed. `tag` is that process's temporary tag; what carries another tag
    /// stays. Returns how many there were.
    [[nodiscard]] virtual Expected<unsigned> removeTemporaries(const std::string& folder,
                                                               const std::string& tag) = 0;
};

} // namespace quillon

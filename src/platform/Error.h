#pragma once

#include <QString>

#include <expected>

namespace quillon {

/// What went wrong, coarse enough for a caller to act on. The sentence for people is the message.
enum class ErrorKind {
    notFound,         ///< nothing at the path
    permissionDenied, ///< the system refuses access
    alreadyExists,    ///< a name is taken
    noSpace,          ///< device or quota full
    wrongType,        ///< a file where a folder is needed, a pipe where a file is needed
    changed,          ///< the file is no longer the one that was looked at
    unsupported,      ///< the file system or the machine can't do it
    invalid,          ///< input that can't be understood
    timedOut,         ///< a child process or a service took too long
    locked,           ///< a keyring that only its owner can unlock
    io,               ///< anything else the system reports
};

/// A failure as a value. `message` is one plain sentence or clause without a trailing stop.
struct Error {
    ErrorKind kind = ErrorKind::io;
    QString message;

    bool operator==(const Error&) const = default;
};

template <typename T>
using Expected = std::expected<T, Error>;

[[nodiscard]] inline std::unexpected<Error> failure(ErrorKind kind, QString message) {
    return std::unexpected(Error{kind, std::move(message)});
}

} // namespace quillon

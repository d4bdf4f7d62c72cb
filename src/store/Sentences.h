#pragma once

#include "platform/Error.h"

#include <QString>

#include <string_view>

namespace quillon {

/// A path as people read it.
[[nodiscard]] inline QString pathText(std::string_view path) {
    return QString::fromUtf8(path);
}

/// "1 file", "2 files", "no files".
[[nodiscard]] inline QString counted(std::size_t number, const QString& noun) {
    const QString amount = number == 0 ? QStringLiteral("no") : QString::number(number);
    return amount + u' ' + noun + (number == 1 ? QString() : QStringLiteral("s"));
}

/// The same failure, its message introduced by what was being done: "WHAT: MESSAGE".
[[nodiscard]] inline std::unexpected<Error> failedTo(const QString& what, const Error& error) {
    return failure(error.kind, what + QStringLiteral(": ") + error.message);
}

/// Why the assistant's answers are missing.
[[nodiscard]] inline QString dobbinProblem(const QString& reason) {
    return QStringLiteral("Dobbin could not answer: ") + reason;
}

} // namespace quillon

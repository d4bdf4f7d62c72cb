#pragma once

#include "platform/Error.h"

#include <QString>

#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

namespace quillon {

/// Where a command reads and writes. Borrowed streams; results go to `out`, everything said about
/// them to `err`.
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool colored = false;       ///< `out` shows colours
    bool showsProgress = false; ///< `err` is a terminal
    /// Where relative paths start, absolute. Empty: this process's own working folder.
    std::string workingFolder = {};
    /// Asked before each file is touched; false ends the command early. Empty: always.
    std::function<bool()> mayContinue = {};
    /// Asks a person and reads what is typed without showing it. Empty: nobody types at `in`.
    std::function<std::optional<std::string>(const std::string& question)> askInSecret = {};

    /// One sentence on `err`.
    void say(const QString& sentence) const;
    void say(const Error& error) const;

    /// One line that nobody else is to see, from a person or from `in`; nothing at its end.
    [[nodiscard]] std::optional<std::string> secretLine(const std::string& question) const;
};

} // namespace quillon

#pragma once

#include "platform/Error.h"

#include <QString>

#include <functional>
#include <istream>
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

    /// One sentence on `err`.
    void say(const QString& sentence) const;
    void say(const Error& error) const;
};

} // namespace quillon

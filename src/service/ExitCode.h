#pragma once

namespace quillon {

/// How the command ends. One meaning a number, whatever the verb.
enum class ExitCode {
    done = 0,
    someFailed = 1,  ///< some file failed, or there was nothing to do where something was asked for
    usage = 2,       ///< the command line is wrong
    unreadable = 3,  ///< an input, or Quillon's own data, can't be read
    unreachable = 4, ///< another instance holds the data and can't be reached
};

} // namespace quillon

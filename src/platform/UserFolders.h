#pragma once

#include <string>

namespace quillon {

/// The folders that belong to one user; absolute, without a trailing slash.
struct UserFolders {
    std::string home;
    std::string data;        ///< Quillon's own data: the state file, the journal, shortcuts
    std::string runtime;     ///< sockets and locks of this login
    std::string config = {}; ///< Quillon's own settings
};

} // namespace quillon

#pragma once

#include <QString>

#include <string>
#include <vector>

namespace quillon {

/// One of the folders that every desktop has, where the user keeps it.
struct UserPlace {
    std::string path;
    QString symbol; ///< of the folder icons

    bool operator==(const UserPlace&) const = default;
};

/// Downloads, desktop and documents, in the order in which they are offered. Those that the user
/// has not, which then are the home folder, are left out; the others need not exist.
[[nodiscard]] std::vector<UserPlace> userPlaces();

} // namespace quillon

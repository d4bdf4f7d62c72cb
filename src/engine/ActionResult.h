#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace quillon {

/// The outcome of one action on one file.
struct ActionResult {
    enum class Place {
        same,  ///< the file is where it was
        moved, ///< the file is at `path`
        gone,  ///< the file is in the trash; later actions are passed over
    };
    Place place = Place::same;
    bool succeeded = true;
    bool acted = false;      ///< something was done, perhaps by a child process that then failed
    std::string path;        ///< where the file is now, unless it is gone
    std::string copyPath;    ///< of a copy that was made
    std::string trashedPath; ///< where the trash put it, or an unpacked archive
    QStringList phrases;     ///< for the log; none when nothing happened
};

} // namespace quillon

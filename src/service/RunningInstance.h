#pragma once

#include "platform/UserFolders.h"

#include <QString>

#include <string>

namespace quillon {

/// What came of calling at the instance that runs already.
struct Called {
    enum class End {
        nobody,    ///< none runs
        shown,     ///< it shows its window
        handsOver, ///< it lets go of the store, and waits until this process has ended
        unwilling, ///< it does neither
    };
    End end = End::nobody;
    QString reason = {}; ///< of `unwilling`: a sentence
};

/// Asks the running instance to show its window, or else to give its place to this process. Waits.
/// The activation token is what the desktop gave this process, or empty.
[[nodiscard]] Called callRunningInstance(const UserFolders& folders, const std::string& token);

} // namespace quillon

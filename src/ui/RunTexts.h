#pragma once

#include "store/RunReport.h"

#include <QString>

namespace quillon {

/// What came of tidying a folder that somebody asked for.
struct RunTexts {
    QString sentence; ///< "Filed 3 files in Downloads."
    /// "Filed 3 files", where the folder's name stands beside it; empty where the folder's own
    /// state or its errors say it.
    QString brief;
};

[[nodiscard]] RunTexts runTexts(const RunReport& report);

} // namespace quillon

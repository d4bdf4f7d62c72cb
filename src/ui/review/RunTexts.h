#pragma once

#include "store/RunReport.h"

#include <QString>

namespace quillon {

/// What came of a run that the user asked for: "Filed 3 files in Downloads.", "Downloads is already
/// tidy."
[[nodiscard]] QString runText(const RunReport& report);

/// How many files a run has filed, and could not.
struct RunCount {
    std::size_t filed = 0;
    std::size_t failed = 0;
};
[[nodiscard]] RunCount countOf(const RunResult& run);

} // namespace quillon

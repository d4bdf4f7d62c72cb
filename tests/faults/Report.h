#pragma once

#include <string>
#include <vector>

namespace quillon::testing {

/// What an operation says about one thing when it returns.
struct Claim {
    std::string thing; ///< its path before
    bool succeeded = false;
    std::string place;   ///< where it, or its copy, lies now; for a failure, where it stayed
    std::string losses;  ///< what it says the destination could not hold
    std::string message; ///< of a failure
};

using Report = std::vector<Claim>;

/// As bytes, for the way from the child to the harness.
[[nodiscard]] std::string encodeReport(const Report& report);
[[nodiscard]] Report decodeReport(const std::string& bytes);

} // namespace quillon::testing

#pragma once

#include "platform/Error.h"

#include <functional>
#include <string>

namespace quillon {

/// Renames as one step that never replaces anything. Where the file system has no such step, a file
/// gets its new name beside the old one, which is then removed. Returns 0 or an errno value: EEXIST
/// when `to` is taken by anything, EOPNOTSUPP when the file system can't do it safely.
[[nodiscard]] int renameWithoutReplacing(int fromFolder, const std::string& from, int toFolder,
                                         const std::string& to);

/// What a failed renameWithoutReplacing means.
[[nodiscard]] std::unexpected<Error> renameFailure(int code);

/// The wanted path or name itself for 1, else the numbered one beside it.
[[nodiscard]] std::string candidateName(const std::string& wanted, unsigned number);

struct FreeName {
    std::string name;
    unsigned number = 1;
};

/// Tries `claim` on the wanted name and then on numbered ones for as long as it returns EEXIST.
/// Checking and claiming must be one step in `claim`. `firstNumber` says where to begin once the
/// wanted name is taken.
[[nodiscard]] Expected<FreeName> claimFreeName(
    const std::string& wanted, const std::function<int(const std::string& name)>& claim,
    const std::function<unsigned()>& firstNumber = [] { return 2U; });

} // namespace quillon

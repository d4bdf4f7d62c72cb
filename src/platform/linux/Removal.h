#pragma once

#include "platform/Error.h"
#include "platform/linux/TreeSurvey.h"

#include <string>

namespace quillon {

/// Removes a hidden temporary of our own with all that is in it. Succeeds when there is none.
[[nodiscard]] Expected<void> removeTemporary(int folder, const std::string& name);

enum class RemovalCheck {
    untouched,   ///< an entry goes only if nothing about it has changed
    sameContents ///< an entry goes as long as its contents are the same
};

struct Removal {
    std::size_t removed = 0;
    std::optional<Error> error; ///< why it stopped, nothing after that having been removed
};

/// Removes the entries of a survey one by one, what is deepest first, each after a look that it is
/// still what was surveyed. Entries that are gone already are passed over; a folder that holds
/// anything new stays, with `changed`.
[[nodiscard]] Removal removeSurveyed(TreeCursor& tree, const TreeSurvey& survey,
                                     RemovalCheck check);

} // namespace quillon

#pragma once

#include "platform/Error.h"
#include "platform/FileStatus.h"
#include "platform/linux/TreeCursor.h"

#include <string>
#include <vector>

namespace quillon {

struct SurveyedEntry {
    std::string path; ///< below the tree's root, which is ""
    FileStatus status;
};

/// Everything in a tree, ordered by path: a folder stands before what it holds.
using TreeSurvey = std::vector<SurveyedEntry>;

/// Looks at every entry, links not followed. Fails with `wrongType` when there is a pipe, socket or
/// device among them, with `unsupported` when another file system is mounted inside, and, with
/// `mustBeRemovable`, with `permissionDenied` when a folder's entries could not be removed.
[[nodiscard]] Expected<TreeSurvey> surveyTree(int folder, const std::string& root,
                                              bool mustBeRemovable);

/// The same entries, none of them touched in between.
[[nodiscard]] bool isUnchanged(const TreeSurvey& before, const TreeSurvey& now);

/// Whether two trees hold the same names, contents and link targets. What can't be read is not the
/// same.
[[nodiscard]] bool haveSameContents(TreeCursor& one, const TreeSurvey& oneSurvey, TreeCursor& other,
                                    const TreeSurvey& otherSurvey);

/// Where a link points. Fails when there is no link.
[[nodiscard]] Expected<std::string> linkTarget(int folder, const std::string& name);

/// Opens a regular file for reading without following a link, waiting for a pipe or changing the
/// time of last access.
[[nodiscard]] Expected<Descriptor> openForReading(int folder, const std::string& name);

} // namespace quillon

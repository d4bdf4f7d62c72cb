#include "platform/linux/SameTree.h"

#include "platform/linux/FreeName.h"
#include "platform/linux/SystemStatus.h"
#include "platform/linux/TreeSurvey.h"

namespace quillon {

Expected<std::optional<std::string>> findSame(int sourceFolder, const std::string& sourceName,
                                              int targetFolder, const std::string& wantedName) {
    const Expected<TreeSurvey> source = surveyTree(sourceFolder, sourceName, false);
    if (!source) {
        return std::unexpected(source.error());
    }
    const FileStatus& status = source->front().status;
    TreeCursor original(sourceFolder, sourceName);
    for (unsigned number = 1;; ++number) {
        const std::string name = candidateName(wantedName, number);
        const Expected<FileStatus> there = statusAt(targetFolder, name);
        if (!there && there.error().kind == ErrorKind::notFound) {
            return std::optional<std::string>{};
        }
        if (!there) {
            return std::unexpected(there.error());
        }
        if (there->type != status.type || there->size != status.size) {
            continue;
        }
        const Expected<TreeSurvey> found = surveyTree(targetFolder, name, false);
        TreeCursor candidate(targetFolder, name);
        if (found && haveSameContents(original, *source, candidate, *found)) {
            return name;
        }
    }
}

} // namespace quillon

#include "engine/actions/Renaming.h"

#include "engine/actions/Outcome.h"
#include "platform/FileNames.h"

#include <charconv>

namespace quillon {

namespace {

/// Whether `name` is `wanted` with a number ("a 2.txt" of "a.txt").
bool isNumbered(std::string_view name, std::string_view wanted) {
    const std::string_view stem = splitName(name).stem;
    const std::size_t space = stem.rfind(' ');
    if (space == std::string_view::npos)
        return false;
    unsigned number = 0;
    const char* const end = stem.data() + stem.size();
    const auto [stopped, error] = std::from_chars(stem.data() + space + 1, end, number);
    return error == std::errc() && stopped == end && number >= 2 &&
           numberedName(wanted, number) == name;
}

} // namespace

ActionResult renameTo(const ActionContext& context, const std::string& name) {
    FileSystem& fileSystem = context.platform.fileSystem;
    const std::string_view ownName = lastComponent(context.path);
    const std::string wanted = joinPath(parentPath(context.path), name);
    // Without the second test two files that want one name would take turns at the numbers, run
    // after run.
    if (name == ownName || (isNumbered(ownName, name) && fileSystem.status(wanted)))
        return nothingHappened(context);

    const Expected<Placement> placed = fileSystem.move(context.path, wanted);
    if (!placed)
        return failed(context, QStringLiteral("rename failed: ") + placed.error().message);
    return moved(context, *placed, QStringLiteral("renamed to ") + nameOf(placed->path));
}

} // namespace quillon

#include "engine/LegalName.h"
#include "engine/actions/ActionFunctions.h"
#include "engine/actions/Outcome.h"
#include "platform/Archives.h"
#include "platform/FileNames.h"
#include "platform/Trash.h"

namespace quillon {

namespace {

/// "photos" of "photos.tar.gz".
std::string folderName(std::string_view archiveName) {
    NameParts parts = splitName(archiveName);
    const NameParts inner = splitName(parts.stem);
    if (nameOf(inner.extension).compare(u"tar", Qt::CaseInsensitive) == 0)
        parts.stem = inner.stem;
    return legalName(nameOf(parts.stem), {}, QStringLiteral("Archive"));
}

/// Whether the folder looks like what an earlier run unpacked: made since that moment, with a file
/// in it that has kept a date from before the archive was packed.
bool looksUnpacked(const std::string& folder, Timestamp since, const ActionContext& context) {
    FileSystem& fileSystem = context.platform.fileSystem;
    const Expected<FileStatus> status = fileSystem.status(folder);
    if (!status || status->type != FileType::directory ||
        status->created.value_or(status->changed) < since)
        return false;

    const Expected<Listing> listing =
        fileSystem.list(folder, {.recursive = true, .isPackage = nullptr});
    return listing && std::ranges::any_of(listing->files, [&](const ListedFile& file) {
               return file.status.modified < context.status.modified;
           });
}

/// The folders of that name, numbered ones too, that look unpacked.
std::vector<std::string> earlierFolders(const std::string& wanted, Timestamp since,
                                        const ActionContext& context) {
    const std::string_view parent = parentPath(wanted);
    const std::string_view name = lastComponent(wanted);
    std::vector<std::string> found;
    std::string candidate = wanted;
    for (unsigned number = 2; context.platform.fileSystem.status(candidate); ++number) {
        if (looksUnpacked(candidate, since, context))
            found.push_back(candidate);
        candidate = joinPath(parent, numberedName(name, number));
    }
    return found;
}

/// Nothing to stop the unpacking, or what comes of it instead. Without this, an archive that stays
/// where it is would be unpacked again on every run.
std::optional<ActionResult> alreadyUnpacked(const std::string& wanted, bool keepOriginal,
                                            const ActionContext& context) {
    const FileStatus& archive = context.status;
    if (keepOriginal) {
        // Not the last change: a later action of the rule may tag the archive.
        const Timestamp arrived =
            std::max(archive.modified, archive.created.value_or(archive.modified));
        if (earlierFolders(wanted, arrived, context).empty())
            return std::nullopt;
        return nothingHappened(context);
    }
    // One may be the user's own doing; two are left by runs that could not trash the archive.
    const auto earlier = earlierFolders(wanted, archive.changed, context);
    if (earlier.size() < 2)
        return std::nullopt;
    return failed(
        context,
        QStringLiteral("unpack failed: “%1” holds it already").arg(nameOf(earlier.back())));
}

void removeOriginal(const ActionContext& context, ActionResult& result) {
    const Expected<std::string> trashed = context.platform.trash.put(context.path);
    if (!trashed) {
        result.succeeded = false;
        result.phrases.append(QStringLiteral("could not remove original: ") +
                              trashed.error().message);
        return;
    }
    result.place = ActionResult::Place::gone;
    result.path.clear();
    result.trashedPath = *trashed;
    result.phrases.append(QStringLiteral("removed original"));
}

} // namespace

ActionResult performUnpack(const RuleAction& action, const ActionContext& context) {
    const std::string wanted =
        joinPath(parentPath(context.path), folderName(lastComponent(context.path)));
    if (auto instead = alreadyUnpacked(wanted, action.keepOriginal, context))
        return *std::move(instead);
    const Expected<std::string> folder =
        context.platform.archives.unpack(context.path, wanted, UnpackLimits{});
    if (!folder) {
        const QString& message = folder.error().message;
        return failed(context, message.isEmpty() ? QStringLiteral("could not extract archive")
                                                 : QStringLiteral("unpack failed: ") + message);
    }
    ActionResult result = happened(context, QStringLiteral("unpacked to ") + nameOf(*folder));
    if (!action.keepOriginal)
        removeOriginal(context, result);
    return result;
}

QString describeUnpack(const RuleAction& action, const ActionContext&) {
    return action.keepOriginal ? QStringLiteral("Unpack archive (keep original)")
                               : QStringLiteral("Unpack archive");
}

} // namespace quillon

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
    if (isSameIgnoringCase(inner.extension, "tar"))
        parts.stem = inner.stem;
    return legalName(nameOf(parts.stem), {}, QStringLiteral("Archive"));
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
    const Expected<Unpacked> unpacked =
        context.platform.archives.unpack(context.path, wanted, UnpackLimits{});
    if (!unpacked) {
        const QString& message = unpacked.error().message;
        return failed(context, message.isEmpty() ? QStringLiteral("could not extract archive")
                                                 : QStringLiteral("unpack failed: ") + message);
    }
    if (!unpacked->done && action.keepOriginal)
        return nothingHappened(context);
    // A folder that was there already is most likely that of a run that could not go on to this.
    ActionResult result =
        happened(context, QStringLiteral("unpacked to ") + nameOf(unpacked->folder));
    if (!action.keepOriginal)
        removeOriginal(context, result);
    return result;
}

QString describeUnpack(const RuleAction& action, const ActionContext&) {
    return action.keepOriginal ? QStringLiteral("Unpack archive (keep original)")
                               : QStringLiteral("Unpack archive");
}

} // namespace quillon

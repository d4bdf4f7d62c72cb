#include "platform/linux/StagedCopy.h"

#include "platform/linux/EntryCopy.h"
#include "platform/linux/Removal.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/SystemStatus.h"

#include <cerrno>
#include <unistd.h>

namespace quillon {

StagedCopy::StagedCopy(int sourceFolder, const std::string& root, int targetFolder,
                       std::string temporary)
    : source_(sourceFolder, root)
    , target_(targetFolder, temporary)
    , targetFolder_(targetFolder)
    , temporary_(std::move(temporary)) {}

StagedCopy::~StagedCopy() {
    if (isStaged_) {
        // Should even this fail, a hidden leftover stays, which bears this process's tag.
        (void)removeTemporary(targetFolder_, temporary_);
    }
}

Expected<void> StagedCopy::make(bool willRemoveSource) {
    Expected<TreeSurvey> survey = surveyTree(source_.folder(), source_.root(), willRemoveSource);
    if (!survey) {
        return std::unexpected(survey.error());
    }
    sourceSurvey_ = std::move(*survey);
    for (const SurveyedEntry& entry : sourceSurvey_) {
        if (Expected<void> copied = copyEntry(entry); !copied) {
            return copied;
        }
    }
    Expected<void> finished = finishFolders();
    return finished ? checkSource(willRemoveSource) : finished;
}

Expected<void> StagedCopy::copyEntry(const SurveyedEntry& entry) {
    const Expected<TreeCursor::Place> from = source_.find(entry.path);
    const Expected<TreeCursor::Place> to = target_.find(entry.path);
    if (!from || !to) {
        return std::unexpected(from ? to.error() : from.error());
    }
    Expected<void> copied;
    switch (entry.status.type) {
    case FileType::directory:
        copied = beginFolder(*to);
        break;
    case FileType::symbolicLink:
        copied = copyLink(*from, *to, losses_);
        break;
    default:
        copied = copyRegularFile(*from, *to, entry.status, losses_);
        break;
    }
    // A name that was taken already is somebody else's, and not ours to remove.
    isStaged_ = isStaged_ || copied || copied.error().kind != ErrorKind::alreadyExists;
    return copied;
}

Expected<void> StagedCopy::finishFolders() {
    for (auto entry = sourceSurvey_.rbegin(); entry != sourceSurvey_.rend(); ++entry) {
        if (entry->status.type != FileType::directory) {
            continue;
        }
        const Expected<TreeCursor::Place> from = source_.find(entry->path);
        const Expected<TreeCursor::Place> to = target_.find(entry->path);
        if (!from || !to) {
            return std::unexpected(from ? to.error() : from.error());
        }
        if (Expected<void> finished = finishFolder(*from, *to, losses_); !finished) {
            return finished;
        }
    }
    return {};
}

Expected<void> StagedCopy::checkSource(bool willRemoveSource) const {
    const Expected<TreeSurvey> now = surveyTree(source_.folder(), source_.root(), willRemoveSource);
    if (now) {
        return isUnchanged(sourceSurvey_, *now) ? Expected<void>{} : changedWhileCopied();
    }
    return now.error().kind == ErrorKind::notFound ? changedWhileCopied()
                                                   : std::unexpected(now.error());
}

Expected<FreeName> StagedCopy::publish(const std::string& wantedName) {
    // What is published now is known, so that taking it back could never take anything else.
    Expected<TreeSurvey> survey = surveyTree(targetFolder_, temporary_, false);
    if (!survey) {
        return std::unexpected(survey.error());
    }
    targetSurvey_ = std::move(*survey);
    Expected<FreeName> claimed = claimFreeName(wantedName, [this](const std::string& name) {
        return renameWithoutReplacing(targetFolder_, temporary_, targetFolder_, name);
    });
    if (!claimed) {
        return claimed;
    }
    isStaged_ = false;
    published_ = claimed->name;
    if (::fsync(targetFolder_) != 0) {
        const int error = errno;
        if (!takeBack()) {
            return failure(ErrorKind::io, QStringLiteral("%1; the copy “%2” could not be removed")
                                              .arg(systemError(error).message,
                                                   QString::fromStdString(published_)));
        }
        return systemFailure(error);
    }
    return claimed;
}

Expected<void> StagedCopy::removeSource() {
    const Removal removal = removeSurveyed(source_, sourceSurvey_, RemovalCheck::untouched);
    if (!removal.error) {
        return {};
    }
    const Error& error = *removal.error;
    const bool isForbidden = error.kind != ErrorKind::changed;
    if (isForbidden && removal.removed == 0 && takeBack()) {
        return std::unexpected(error);
    }
    return failure(error.kind, QStringLiteral("%1; a whole copy is at the destination as “%2”")
                                   .arg(error.message, QString::fromStdString(published_)));
}

bool StagedCopy::takeBack() {
    // Only while the source is still all there may the copy go.
    const Expected<TreeSurvey> source = surveyTree(source_.folder(), source_.root(), false);
    if (!source || !isUnchanged(sourceSurvey_, *source)) {
        return false;
    }
    TreeCursor copy(targetFolder_, published_);
    return !removeSurveyed(copy, targetSurvey_, RemovalCheck::sameContents).error;
}

} // namespace quillon

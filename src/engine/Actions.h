#pragma once

#include "engine/ActionResult.h"
#include "engine/EngineSettings.h"
#include "engine/KindClassifier.h"
#include "model/RuleAction.h"
#include "platform/FileStatus.h"
#include "platform/Platform.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

class DateFormats;

/// What an action sees of the file it acts on.
struct ActionContext {
    const Platform& platform;
    KindClassifier& kinds;
    DateFormats& dates;
    const EngineSettings& settings;
    std::string path; ///< where the file is now, absolute
    FileStatus status;
    unsigned counter = 1;           ///< the rule's running number of this file in this batch
    QStringList captures;           ///< for the tokens {1} to {9}
    std::string watchedFolder = {}; ///< the folder being tidied, absolute; empty when there is none
    /// The base name that the assistant gave the file. Taken when the rule takes the file: the
    /// assistant knows it by the path that an earlier action may change.
    std::optional<QString> smartName = {};
};

/// Carries the action out. Never fails: what went wrong is a phrase of the result.
[[nodiscard]] ActionResult performAction(const RuleAction& action, const ActionContext& context);

/// What the action would do, for the preview: "Move to Invoices".
[[nodiscard]] QString describeAction(const RuleAction& action, const ActionContext& context);

/// The folders into which the action may put the file or something it makes of it, absolute; empty
/// when it leaves everything where it is.
[[nodiscard]] std::vector<std::string> targetFolders(const RuleAction& action,
                                                     const ActionContext& context);

} // namespace quillon

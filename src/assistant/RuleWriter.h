#pragma once

#include "assistant/AIRequest.h"
#include "assistant/RuleDraft.h"
#include "model/WatchedFolder.h"
#include "platform/Error.h"
#include "platform/Platform.h"

#include <QString>

#include <vector>

namespace quillon {

/// Where a rule is to live: the folder, watched or not, and the watched folders beside it.
struct RulePlace {
    WatchedFolder folder;
    std::vector<WatchedFolder> otherFolders = {};
};

/// Asks a model for the rule that one sentence describes.
[[nodiscard]] AIRequest ruleRequest(const QString& sentence, const RulePlace& place);

/// The rule that a model's answer means, repaired where it is wrong, with warnings about what was
/// lost and about folders that it names outside of the user's own. Fails with a sentence for people
/// when the answer is not of the form that was asked for, or does nothing that a rule may do. Looks
/// at the disk to see where folders lead; any thread.
[[nodiscard]] Expected<RuleDraft> draftFromJson(const QString& answer, const RulePlace& place,
                                                const Platform& platform);

} // namespace quillon

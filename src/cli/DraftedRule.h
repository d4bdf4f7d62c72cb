#pragma once

#include "assistant/RuleWriter.h"
#include "cli/FolderPlace.h"
#include "cli/Refusal.h"

namespace quillon {

/// A rule that the assistant has written, and what it would do in its folder now.
struct DraftedRule {
    RuleDraft draft;
    QStringList destinations = {}; ///< where files would go, links and ".." followed
    QStringList matches = {};      ///< names of the files that it would catch
    QStringList asks = {};         ///< names of those about which Dobbin would be asked first
    std::size_t tested = 0;        ///< files of the folder that may be tidied now
    bool isSeen = false;           ///< it was shown before
};

enum class DraftSource : std::uint8_t {
    model,
    memory, ///< what was shown last for the sentence and the folder; a model where that is unknown
};

/// Has a model write the rule, and looks what it would catch behind the rules that the folder has.
/// Changes nothing but what is remembered of drafts, and asks no model about files. A refusal says
/// why there is no rule.
[[nodiscard]] Chosen<DraftedRule> draftRule(const QString& sentence, const FolderPlace& place,
                                            DraftSource source, const Console& console,
                                            Services& services);

} // namespace quillon

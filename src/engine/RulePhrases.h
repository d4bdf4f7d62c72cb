#pragma once

#include "model/Condition.h"
#include "model/RuleAction.h"
#include "platform/Error.h"

#include <QString>

namespace quillon {

// Conditions and actions in words: those that summaries write, and what people write in their
// place. Case does not matter, and values may stand in quotes or not. Both fail with `invalid` and
// a sentence that names the words at fault and the nearest ones that are understood.

/// "extension is pdf", "not tagged red", "larger than 10 MB", "not opened in over 90 days"
[[nodiscard]] Expected<Condition> conditionFromWords(const QString& words);

/// "move to ~/Documents/PDFs", "tag red", "sort into subfolders by month". A folder begins with "/"
/// or with "~/", which stays as it is; "./" stands for `folder`, the one that the rule belongs to.
[[nodiscard]] Expected<RuleAction> actionFromWords(const QString& words, const QString& folder);

} // namespace quillon

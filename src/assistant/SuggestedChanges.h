#pragma once

#include "assistant/DobbinAction.h"
#include "assistant/RuleConflicts.h"
#include "model/WatchedFolder.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <vector>

namespace quillon {

inline constexpr std::size_t mostActions = 2; ///< that are kept with an answer

/// Whether an answer proposes a change, so that it is worth asking which one.
[[nodiscard]] bool suggestsChange(const QString& answer);

/// The system prompt, the message and the schema of the request that asks which changes an answer
/// proposes. `composed` is the message that was answered.
[[nodiscard]] QString extractionPrompt();
[[nodiscard]] QString extractionMessage(const QString& composed, const QString& answer);
[[nodiscard]] QByteArray actionsOnlySchema();

/// The first changes in the model's answer that fit these folders, at most two and no two alike;
/// none when the answer can't be read.
[[nodiscard]] std::vector<DobbinAction> actionsFromJson(const QString& json,
                                                        const std::vector<WatchedFolder>& folders);

/// Whether the model's answer is a list as it should be, and there is nothing in it.
[[nodiscard]] bool saysNoChange(const QString& json);

/// For the first conflict of each folder a new order that puts the later rule above the earlier
/// one, to go with the changes that are shown already: none for a folder whose rules those reorder,
/// and at most two changes in all.
[[nodiscard]] std::vector<DobbinAction> fixes(const std::vector<RuleConflict>& conflicts,
                                              const std::vector<DobbinAction>& shownWith,
                                              const std::vector<WatchedFolder>& folders);

} // namespace quillon

#pragma once

#include "assistant/AIRequest.h"
#include "assistant/ModelAccess.h"
#include "assistant/RuleSuggestion.h"
#include "model/WatchedFolder.h"
#include "platform/Error.h"

#include <QCoroTask>
#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// Asks a model for better folder names than an extension or a host, and which extensions belong
/// together. Nothing when there is none of either among the suggestions: what else is suggested has
/// its name. The request holds the groups and the names of a few files of each, at most 80
/// characters of one line a name; no path and no contents.
[[nodiscard]] std::optional<AIRequest>
namingRequest(const std::vector<RuleSuggestion>& suggestions);

/// What to choose from once more: the suggestions under the names of a model's answer, joined where
/// it says so, and behind them the suggestions as they were, for where a name turns out to be of no
/// use. All that is taken from the answer is names of subfolders, cleaned, and which extensions
/// share one; what is wrong with it is passed over. Fails with `invalid` when nothing of it could
/// be used.
[[nodiscard]] Expected<std::vector<RuleSuggestion>>
namedSuggestions(const std::vector<RuleSuggestion>& suggestions, const QString& answer,
                 const WatchedFolder& folder);

/// Both; nothing whenever there is nothing to name or the model doesn't help. On the model's
/// thread.
[[nodiscard]] QCoro::Task<std::optional<std::vector<RuleSuggestion>>>
askForNames(ModelAccess& model, std::vector<RuleSuggestion> suggestions, WatchedFolder folder);

} // namespace quillon

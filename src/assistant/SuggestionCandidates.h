#pragma once

#include "assistant/FolderView.h"
#include "assistant/RuleSuggestion.h"

#include <vector>

namespace quillon {

/// The rules that might suit the folder, by topic, and within one the more common before the rarer:
/// not counted, not checked against each other. Looks at the origin of 2,000 files at most, the
/// newest, and of none where there are more than 20,000 files.
[[nodiscard]] std::vector<RuleSuggestion> suggestionCandidates(const FolderView& view);

/// The rule that puts files from a host, or with extensions, into a subfolder of that name.
[[nodiscard]] Rule hostRule(const WatchedFolder& folder, const QString& host,
                            const QString& subfolder);
[[nodiscard]] Rule extensionRule(const WatchedFolder& folder, const QStringList& extensions,
                                 const QString& subfolder);

} // namespace quillon

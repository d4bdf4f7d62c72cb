#pragma once

#include "assistant/RuleSuggestion.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"

#include <QString>

#include <span>

namespace quillon {

/// Why the rule is suggested, from the files that it would take, of which there is one at least:
/// "14 screenshots, the oldest from March."
[[nodiscard]] QString suggestionReason(const RuleSuggestion& suggestion,
                                       std::span<const ListedFile* const> caught, Timestamp now);

} // namespace quillon

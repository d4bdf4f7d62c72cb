#pragma once

#include "assistant/RuleWriter.h"
#include "cli/Refusal.h"
#include "service/Services.h"

#include <expected>
#include <string>

namespace quillon {

/// A rule that the assistant has written, and what it would do in its folder now.
struct DraftedRule {
    RuleDraft draft;
    QStringList destinations = {}; ///< where files would go, links and ".." followed
    QStringList matches = {};      ///< names of the files that it would catch
    QStringList asks = {};         ///< names of those about which Dobbin would be asked first
    std::size_t tested = 0;        ///< files that it was tried on
};

/// A folder that a rule is written for.
struct DraftPlace {
    RulePlace place;
    bool isWatched = false;
};

/// The folder at a path of the command line, watched or not. Says why when there is none.
[[nodiscard]] std::expected<DraftPlace, ExitCode>
draftPlaceAt(const std::string& path, const Console& console, Services& services);

/// Has a model write the rule, and looks what it would catch. Changes nothing, and asks no model
/// about files. A refusal says why there is no rule.
[[nodiscard]] Chosen<DraftedRule> draftRule(const QString& sentence, const RulePlace& place,
                                            const Console& console, Services& services);

} // namespace quillon

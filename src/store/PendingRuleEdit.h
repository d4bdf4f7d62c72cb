#pragma once

#include "model/Rule.h"

namespace quillon {

/// A rule that the rule editor is asked to open.
struct PendingRuleEdit {
    QUuid folderID;
    Rule rule;

    bool operator==(const PendingRuleEdit&) const = default;
};

} // namespace quillon

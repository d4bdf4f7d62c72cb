#pragma once

#include "model/Rule.h"

#include <QString>
#include <QStringList>

namespace quillon {

/// A rule that the assistant has written, for a person to look at before it is saved.
struct RuleDraft {
    Rule rule;
    QString note = {};         ///< the model's own words about what the rule can't do; may be empty
    QStringList warnings = {}; ///< sentences to be shown beside the rule, what it lacks among them
    bool needsConsent = false; ///< not to be saved before the user has seen them and said so
};

} // namespace quillon

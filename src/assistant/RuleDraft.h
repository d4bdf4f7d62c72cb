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
    /// It leads out of the user's own folders, lacks a part, or may catch nothing or what wasn't
    /// meant, as the warnings say: not to be saved before the user has seen them and said so.
    bool needsConsent = false;
};

} // namespace quillon

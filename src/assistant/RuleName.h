#pragma once

#include "model/Rule.h"

#include <QString>

namespace quillon {

/// What a rule is called: what the model called it, where that is one line of at most 60 characters
/// with a letter or a digit in it, else the short name.
[[nodiscard]] QString ruleName(const QString& said, const Rule& rule);

/// A name made of what a rule does first: "File into Receipts", "Tag green files".
[[nodiscard]] QString shortName(const Rule& rule);

} // namespace quillon

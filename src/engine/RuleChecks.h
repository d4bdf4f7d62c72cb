#pragma once

#include "model/Rule.h"

#include <QStringList>

namespace quillon {

/// What keeps a rule from doing anything, in sentences for people; empty when the rule is complete.
[[nodiscard]] QStringList validationWarnings(const Rule& rule);

} // namespace quillon

#pragma once

#include "model/Rule.h"

#include <QString>

namespace quillon {

/// A rule in one line of plain English: "If extension is “pdf” → Move to Invoices, Tag Red". Reads
/// no files; what is missing is shown as "…".
[[nodiscard]] QString summary(const Rule& rule);

/// "extension is “pdf”"
[[nodiscard]] QString summaryText(const Condition& condition);

/// "Move to Invoices"
[[nodiscard]] QString summaryText(const RuleAction& action);

} // namespace quillon

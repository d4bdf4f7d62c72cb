#pragma once

#include "model/Rule.h"
#include "platform/Error.h"

#include <QByteArray>

#include <vector>

namespace quillon {

/// A rule file: a JSON array of rules, indented, keys sorted.
[[nodiscard]] QByteArray encodeRules(const std::vector<Rule>& rules);

/// Fails with `invalid` and a message that names the key and the offending text
/// ("rules[2].conditions[0].op: “contians” is not an operator"), or the line and column where the
/// text stops being JSON.
[[nodiscard]] Expected<std::vector<Rule>> decodeRules(const QByteArray& bytes);

} // namespace quillon

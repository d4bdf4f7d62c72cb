#pragma once

#include "model/Condition.h"

#include <QString>

#include <cstdint>

namespace quillon {

/// The control that a condition's value is set with.
enum class ValueEditor : std::uint8_t { text, kind, tag, days, size, date, question };

[[nodiscard]] ValueEditor valueEditor(ConditionAttribute attribute, MatchOperator op);

/// Its name in QML: "text", "kind".
[[nodiscard]] QString valueEditorName(ValueEditor editor);

/// The condition about another attribute: with its operator and its value where they fit that one
/// too, otherwise with the first that do.
[[nodiscard]] Condition withAttribute(Condition condition, ConditionAttribute attribute);
[[nodiscard]] Condition withOperator(Condition condition, MatchOperator op);

/// The value as it is stored: a number or a day that was typed as people of the user's locale write
/// it. Any other text stays as it is.
[[nodiscard]] QString storedValue(const Condition& condition);

/// What is wrong with what was typed, in a sentence; empty when it is understood, or nothing was
/// typed.
[[nodiscard]] QString valueError(const Condition& condition);
/// The same where nothing was typed although something must be.
[[nodiscard]] QString missingValue(const Condition& condition);

} // namespace quillon

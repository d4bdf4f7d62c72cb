#pragma once

#include <QJsonObject>
#include <QJsonValue>

namespace quillon {

/// Whether an answer is what the schema asks for. Understands `type`, `properties`, `required`,
/// `additionalProperties`, `items` and `enum`; other keywords ask for nothing. A schema without one
/// of these takes anything in that respect.
[[nodiscard]] bool fits(const QJsonValue& answer, const QJsonObject& schema);

} // namespace quillon

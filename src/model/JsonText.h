#pragma once

#include "platform/Error.h"

#include <QByteArray>
#include <QJsonValue>

namespace quillon {

/// A whole JSON text in UTF-8, its root being a list or an object. A byte-order mark is passed
/// over. Fails with `invalid` and a message that says where: "line 3, column 5: missing value
/// separator".
[[nodiscard]] Expected<QJsonValue> parseJson(const QByteArray& bytes);

} // namespace quillon

#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace quillon {

/// The object as text with one more entry, whose value is JSON text and stays as it is: a
/// QJsonObject would sort its keys.
[[nodiscard]] QByteArray withRawEntry(const QJsonObject& object, const QByteArray& key,
                                      const QByteArray& value);

} // namespace quillon

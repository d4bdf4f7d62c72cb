#pragma once

#include <QString>
#include <QUuid>

#include <optional>

namespace quillon {

/// The form in which records store an id: 36 characters, upper case, no braces.
[[nodiscard]] QString uuidText(const QUuid& id);

/// Reads that form in either letter case; nothing for any other text.
[[nodiscard]] std::optional<QUuid> uuidFromText(const QString& text);

} // namespace quillon

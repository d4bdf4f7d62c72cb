#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace quillon {

/// The body of a .doc file of Word 97 or later, up to `enough` characters. Absent when it is none,
/// is encrypted or is broken.
[[nodiscard]] std::optional<QString> wordText(QByteArrayView contents, qsizetype enough);

} // namespace quillon

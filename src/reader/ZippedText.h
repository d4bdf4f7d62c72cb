#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace quillon {

/// The text of a .docx or .odt file, up to `enough` characters. Only the part that holds the text
/// is unpacked, and 8 MiB of it at most. Absent when there is no such part.
[[nodiscard]] std::optional<QString> zippedText(QByteArrayView contents, qsizetype enough);

} // namespace quillon

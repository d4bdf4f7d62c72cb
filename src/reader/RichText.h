#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace quillon {

/// The text of an RTF file: what stands on its pages, without headers, hidden words and whatever
/// else a reader would not see. Ends once it has found `enough` characters. Absent when the bytes
/// don't start as RTF does.
[[nodiscard]] std::optional<QString> richText(QByteArrayView contents, qsizetype enough);

} // namespace quillon

#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace quillon {

/// The strings of a property list, binary or XML, that is a list of strings. Absent for anything
/// else, and for a list of more than 1,024 entries: the bytes come from strangers.
[[nodiscard]] std::optional<QStringList> decodeStringList(const QByteArray& bytes);

/// A binary property list.
[[nodiscard]] QByteArray encodeStringList(const QStringList& strings);

} // namespace quillon

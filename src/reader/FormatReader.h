#pragma once

#include <QFile>
#include <QString>

#include <optional>

namespace quillon {

/// No reader needs to go on once it has found this many characters.
constexpr qsizetype enoughText = 16 * 1024;

/// Reads the text of one kind of file. Made before the process is confined: the constructor loads
/// whatever reading needs, for later nothing can be opened any more.
class FormatReader {
public:
    virtual ~FormatReader() = default;

    /// The file is open for reading, at its start, and may hold anything at all. Absent when it is
    /// not of this kind, is encrypted, or is too broken.
    [[nodiscard]] virtual std::optional<QString> read(QFile& file) = 0;
};

} // namespace quillon

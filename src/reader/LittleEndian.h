#pragma once

#include <QByteArrayView>
#include <QtEndian>

#include <optional>

namespace quillon {

/// The number at that offset, least byte first; absent when it does not lie wholly inside.
template <typename Number>
[[nodiscard]] std::optional<Number> numberAt(QByteArrayView bytes, std::uint64_t offset) {
    const auto size = static_cast<std::uint64_t>(bytes.size());
    if (offset > size || size - offset < sizeof(Number)) {
        return std::nullopt;
    }
    return qFromLittleEndian<Number>(bytes.data() + offset);
}

/// The part of `bytes` that begins at `offset`, `length` long or less where they end before.
[[nodiscard]] inline QByteArrayView partOf(QByteArrayView bytes, std::uint64_t offset,
                                           std::uint64_t length) {
    const auto size = static_cast<std::uint64_t>(bytes.size());
    const std::uint64_t start = std::min(offset, size);
    return bytes.sliced(static_cast<qsizetype>(start),
                        static_cast<qsizetype>(std::min(length, size - start)));
}

} // namespace quillon

#pragma once

#include <QStringView>

#include <cstdint>

namespace quillon {

struct Rule;

/// FNV-1a over the UTF-16 units of a text, low byte first: the same on every machine and in every
/// version. Not for secrets.
[[nodiscard]] std::uint64_t stableHash(QStringView text);

/// Of which rule it is and what it does, not of its name or whether it is on.
[[nodiscard]] std::uint64_t stableHash(const Rule& rule);

} // namespace quillon

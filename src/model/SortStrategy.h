#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class SortStrategy : std::uint8_t {
    byKind,
    byMonth,
    byExtension,
};

template <>
inline constexpr auto rawValues<SortStrategy> = std::to_array<std::u16string_view>({
    u"By kind",
    u"By month",
    u"By extension",
});

template <>
inline constexpr std::u16string_view rawValueNoun<SortStrategy> = u"a way to sort";

} // namespace quillon

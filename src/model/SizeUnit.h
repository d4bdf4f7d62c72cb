#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class SizeUnit : std::uint8_t {
    kb,
    mb,
    gb,
};

template <>
inline constexpr auto rawValues<SizeUnit> = std::to_array<std::u16string_view>({
    u"KB",
    u"MB",
    u"GB",
});

template <>
inline constexpr std::u16string_view rawValueNoun<SizeUnit> = u"a size unit";

} // namespace quillon

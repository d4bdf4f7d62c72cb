#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class MatchMode : std::uint8_t {
    all,
    any,
    none,
};

template <>
inline constexpr auto rawValues<MatchMode> = std::to_array<std::u16string_view>({
    u"all",
    u"any",
    u"none",
});

template <>
inline constexpr std::u16string_view rawValueNoun<MatchMode> = u"a match mode";

} // namespace quillon

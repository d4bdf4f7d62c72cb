#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class TagColor : std::uint8_t {
    red,
    orange,
    yellow,
    green,
    blue,
    purple,
    gray,
};

template <>
inline constexpr auto rawValues<TagColor> = std::to_array<std::u16string_view>({
    u"red",
    u"orange",
    u"yellow",
    u"green",
    u"blue",
    u"purple",
    u"gray",
});

template <>
inline constexpr std::u16string_view rawValueNoun<TagColor> = u"a tag colour";

/// "Red": the name of the tag that the colour puts on a file.
[[nodiscard]] QString label(TagColor color);

} // namespace quillon

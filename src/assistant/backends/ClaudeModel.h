#pragma once

#include "model/RawValue.h"

#include <QString>

#include <cstdint>

namespace quillon {

/// Which Claude the user has picked, in the order of the picker. The raw value is the id that the
/// service knows it by.
enum class ClaudeModel : std::uint8_t { sonnet, haiku, opus };

template <>
inline constexpr auto rawValues<ClaudeModel> = std::to_array<std::u16string_view>({
    u"claude-sonnet-5-5",
    u"claude-haiku-5-5",
    u"claude-opus-5-5",
});

template <>
inline constexpr std::u16string_view rawValueNoun<ClaudeModel> = u"a Claude model";

/// "Claude Sonnet 5.5"
[[nodiscard]] QString label(ClaudeModel model);

} // namespace quillon

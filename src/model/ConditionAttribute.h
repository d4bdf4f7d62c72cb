#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class ConditionAttribute : std::uint8_t {
    name,
    fullName,
    extension,
    kind,
    tag,
    whereFrom,
    dateModified,
    dateAdded,
    dateCreated,
    lastOpened,
    size,
    dobbinSays,
};

template <>
inline constexpr auto rawValues<ConditionAttribute> = std::to_array<std::u16string_view>({
    u"Name",
    u"Full name",
    u"Extension",
    u"Kind",
    u"Tag",
    u"Where from",
    u"Date modified",
    u"Date added",
    u"Date created",
    u"Last opened",
    u"Size",
    u"Dobbin says it",
});

template <>
inline constexpr std::u16string_view rawValueNoun<ConditionAttribute> = u"an attribute";

} // namespace quillon

#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class ActionType : std::uint8_t {
    move,
    copy,
    rename,
    renameWithDobbin,
    addTag,
    removeTag,
    sortIntoSubfolder,
    unpack,
    runShortcut,
    runScript,
    trash,
};

template <>
inline constexpr auto rawValues<ActionType> = std::to_array<std::u16string_view>({
    u"Move to folder",
    u"Copy to folder",
    u"Rename",
    u"Rename with Dobbin",
    u"Add tag",
    u"Remove tag",
    u"Sort into subfolder",
    u"Unpack archive",
    u"Run Shortcut",
    u"Run shell script",
    u"Move to Trash",
});

template <>
inline constexpr std::u16string_view rawValueNoun<ActionType> = u"an action";

/// The name of the system symbol shown beside the type.
[[nodiscard]] QString symbol(ActionType type);

} // namespace quillon

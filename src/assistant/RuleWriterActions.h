#pragma once

#include "model/ActionType.h"

#include <array>

namespace quillon {

/// What a rule of the assistant's may do. Never to run anything: that is for people to write.
inline constexpr auto writableActions = std::to_array({
    ActionType::move,
    ActionType::copy,
    ActionType::rename,
    ActionType::renameWithDobbin,
    ActionType::addTag,
    ActionType::removeTag,
    ActionType::sortIntoSubfolder,
    ActionType::unpack,
    ActionType::trash,
});

} // namespace quillon

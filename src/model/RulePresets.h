#pragma once

#include "model/Preset.h"

#include <vector>

namespace quillon {

/// The presets in the order in which they are offered. Every call makes them anew, so that a preset
/// added twice gives two rules with ids of their own.
[[nodiscard]] std::vector<Preset> rulePresets();

} // namespace quillon

#pragma once

#include "faults/Scenario.h"

#include <vector>

namespace quillon::testing {

/// Every way in which Quillon puts a user's file somewhere else, on every kind of machine that
/// makes a difference to it.
[[nodiscard]] const std::vector<Scenario>& quillonScenarios();

} // namespace quillon::testing

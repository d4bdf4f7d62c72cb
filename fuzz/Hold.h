#pragma once

#include <cstdlib>

namespace quillon {

/// Ends the run, with what led to it kept, when a parser breaks its word.
inline void hold(bool promise) {
    if (!promise) {
        std::abort();
    }
}

} // namespace quillon

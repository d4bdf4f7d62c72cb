#include "platform/linux/SystemClock.h"

namespace quillon {

Timestamp SystemClock::now() const {
    return std::chrono::system_clock::now();
}

} // namespace quillon

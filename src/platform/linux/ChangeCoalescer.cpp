#include "platform/linux/ChangeCoalescer.h"

#include <algorithm>

namespace quillon {

void ChangeCoalescer::note(Moment now) {
    if (!due_) {
        due_ = delivered_ ? std::max(now, *delivered_ + latency_) : now;
    }
}

bool ChangeCoalescer::take(Moment now) {
    if (!due_ || now < *due_) {
        return false;
    }
    due_.reset();
    delivered_ = now;
    return true;
}

} // namespace quillon

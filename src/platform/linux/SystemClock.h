#pragma once

#include "platform/Clock.h"

namespace quillon {

class SystemClock : public Clock {
public:
    [[nodiscard]] Timestamp now() const override;
};

} // namespace quillon

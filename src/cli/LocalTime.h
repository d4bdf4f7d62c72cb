#pragma once

#include "platform/Clock.h"

#include <QDateTime>
#include <QString>

namespace quillon {

/// A moment as people read it, to the minute, where this machine is.
[[nodiscard]] inline QString localTime(Timestamp moment) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch();
    return QDateTime::fromSecsSinceEpoch(seconds.count()).toString(u"yyyy-MM-dd HH:mm");
}

} // namespace quillon

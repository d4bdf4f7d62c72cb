#include "assistant/backends/MonthStamp.h"

#include <QDateTime>

#include <chrono>

namespace quillon {

QString monthStamp(Timestamp now) {
    const auto sinceEpoch = std::chrono::floor<std::chrono::milliseconds>(now.time_since_epoch());
    const QDate today = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count()).date();
    return QStringLiteral("%1-%2").arg(today.year()).arg(today.month());
}

} // namespace quillon

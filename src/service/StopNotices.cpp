#include "service/StopNotices.h"

#include "platform/linux/StopSignals.h"

namespace quillon {

StopNotices::StopNotices(std::function<void()> askedToStop) {
    if (stopSignalDescriptor() < 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(stopSignalDescriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [askedToStop = std::move(askedToStop)] {
                         for (int left = takeStopSignals(); left > 0; --left)
                             askedToStop();
                     });
}

} // namespace quillon

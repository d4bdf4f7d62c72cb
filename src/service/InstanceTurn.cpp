#include "service/InstanceTurn.h"

#include "platform/linux/ProcessEnd.h"
#include "service/CommandClient.h"
#include "service/Signal.h"

#include <QSocketNotifier>

#include <memory>

namespace quillon {
namespace {

/// Whether it ended before this process was asked to.
bool outlives(Services& services, const ProcessEnd& end) {
    Signal signal;
    bool isStopped = false;
    std::unique_ptr<QSocketNotifier> notifier;
    services.onLoop([&] {
        notifier = std::make_unique<QSocketNotifier>(end.descriptor(), QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [&] {
            notifier->setEnabled(false);
            signal.raise();
        });
        services.setStopHandler([&] {
            isStopped = true;
            signal.raise();
        });
    });
    signal.wait();
    services.onLoop([&] {
        services.setStopHandler({});
        notifier.reset();
    });
    return !isStopped;
}

} // namespace

bool waitForTurn(Services& services, std::optional<int> process) {
    const UserFolders& folders = services.platform().folders;
    for (;; process.reset()) {
        if (!process)
            process = instanceProcess(folders);
        if (!process)
            return true;
        // One that can't be watched has ended already.
        if (const auto end = ProcessEnd::of(*process); end && !outlives(services, *end))
            return false;
    }
}

} // namespace quillon

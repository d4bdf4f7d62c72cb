#include "app/FirstInstance.h"

#include "service/RunningInstance.h"

#include <QCoreApplication>

#include <chrono>

namespace quillon {
namespace {

using SteadyClock = std::chrono::steady_clock;

/// What an agent may be at when it is asked to hand over: moving files to another disk, say.
constexpr std::chrono::seconds patience{20};

QString text(const char* sentence) {
    return QCoreApplication::translate("FirstInstance", sentence);
}

/// Quillon runs, and this process doesn't get its place.
Error busy(const Called& called) {
    if (called.end == Called::End::handsOver)
        return {ErrorKind::timedOut,
                text(QT_TRANSLATE_NOOP(
                    "FirstInstance",
                    "Quillon is running in the background and is still tidying. Open it again "
                    "when it has finished, or end it first: quillon status shows what it does."))};
    if (!called.reason.isEmpty())
        return {ErrorKind::timedOut, called.reason};
    return {ErrorKind::timedOut,
            text(QT_TRANSLATE_NOOP("FirstInstance",
                                   "A quillon command is at work on your folders. Open Quillon "
                                   "again when it has finished."))};
}

} // namespace

std::variant<std::unique_ptr<Instance>, ShownElsewhere, Error>
becomeInstance(Services& services, const CommandRunner& run, const std::string& activationToken) {
    const auto end = SteadyClock::now() + patience;
    Called last;
    for (;;) {
        const Called called = callRunningInstance(services.platform().folders, activationToken);
        if (called.end == Called::End::shown)
            return ShownElsewhere();
        if (called.end == Called::End::unwilling)
            return busy(called);
        // One that has stopped listening may still be handing over.
        if (called.end == Called::End::handsOver)
            last = called;
        auto instance = Instance::start(services, run);
        if (instance)
            return std::move(*instance);
        if (instance.error().kind != ErrorKind::timedOut)
            return instance.error();
        if (SteadyClock::now() >= end)
            return busy(last);
    }
}

} // namespace quillon

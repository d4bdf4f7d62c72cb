#include "service/CommandThread.h"

#include "service/StopNotices.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <array>
#include <thread>

namespace quillon {
namespace {

/// The event loop needs the one application object, which is costly enough to be left out where a
/// command line is answered without carrying anything out.
std::unique_ptr<QCoreApplication> applicationIfNone() {
    static std::array<char, 8> name{"quillon"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static int count = 1;
    return QCoreApplication::instance()
               ? nullptr
               : std::make_unique<QCoreApplication>(count, arguments.data());
}

} // namespace

ExitCode onCommandThread(Services& services, const std::function<ExitCode()>& command) {
    const auto application = applicationIfNone();
    QEventLoop loop;
    const StopNotices stops([&] { services.stopRequested(); });
    ExitCode code = ExitCode::done;
    std::thread thread([&] {
        code = command();
        QMetaObject::invokeMethod(
            &loop, [&] { services.finish([&] { loop.quit(); }); }, Qt::QueuedConnection);
    });
    loop.exec();
    thread.join();
    services.close();
    return code;
}

} // namespace quillon

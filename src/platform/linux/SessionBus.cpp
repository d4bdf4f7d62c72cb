#include "platform/linux/SessionBus.h"

#include "platform/FileNames.h"

#include <filesystem>

namespace quillon {

QString sessionBusAddress(const Environment& environment) {
    if (const auto address = environment("DBUS_SESSION_BUS_ADDRESS"); address && !address->empty())
        return QString::fromStdString(*address);
    const auto runtime = environment("XDG_RUNTIME_DIR");
    const std::string socket = runtime ? joinPath(*runtime, "bus") : std::string();
    std::error_code ignored;
    return std::filesystem::is_socket(socket, ignored)
               ? QStringLiteral("unix:path=") + QString::fromStdString(socket)
               : QString();
}

} // namespace quillon

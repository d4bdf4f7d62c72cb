#include "platform/linux/SecretLibrary.h"

#include <QLibrary>

namespace quillon {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int version = 0;
constexpr int sessionBus = 2; ///< of GBusType

using Call = void (*)();
using GetBus = void* (*)(int type, void* cancellable, void** error);
using SetExit = void (*)(void* connection, int exits);
using Unref = void (*)(void* object);

/// Null when the library hasn't got it. Libraries stay loaded.
template <typename Function>
Function functionOf(const QString& library, const char* name) {
    return reinterpret_cast<Function>(QLibrary::resolve(library, version, name));
}

} // namespace

bool loadSecretLibrary() {
    return QLibrary(u"secret-1"_s, version).load();
}

void forgetSecretService() {
    if (const auto disconnect = functionOf<Call>(u"secret-1"_s, "secret_service_disconnect"))
        disconnect();
}

std::shared_ptr<void> holdSessionBus() {
    const auto getBus = functionOf<GetBus>(u"gio-2.0"_s, "g_bus_get_sync");
    const auto setExit = functionOf<SetExit>(u"gio-2.0"_s, "g_dbus_connection_set_exit_on_close");
    const auto unref = functionOf<Unref>(u"gobject-2.0"_s, "g_object_unref");
    if (!getBus || !setExit || !unref)
        return nullptr;
    void* const connection = getBus(sessionBus, nullptr, nullptr);
    if (!connection)
        return nullptr;
    setExit(connection, false);
    return {connection, unref};
}

} // namespace quillon

#include "cli/OpenStore.h"

#include "cli/StoreFailure.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

std::expected<StoreAccess, ExitCode> openStoreFor(const Console& console, Services& services) {
    auto store = services.openStore();
    if (!store)
        return std::unexpected(sayStoreFailure(store.error(), console));
    // An instance has told them to its log when it was started.
    if (services.isInstance())
        return *store;
    const QStringList warnings =
        store->call([](AppStore& appStore) { return appStore.openingWarnings(); });
    for (const QString& warning : warnings)
        console.say(warning);
    return *store;
}

std::expected<StoreSnapshot, ExitCode> viewStoreFor(const Console& console, Services& services) {
    auto view = services.viewStore();
    if (!view)
        return std::unexpected(sayStoreFailure(view.error(), console));
    for (const QString& warning : view->warnings)
        console.say(warning);
    return *std::move(view);
}

ExitCode sayWhetherSaved(const StoreAccess& store, const Console& console) {
    const auto error = store.call([](AppStore& appStore) { return appStore.lastSaveError(); });
    if (!error)
        return ExitCode::done;
    console.say(u"The change can't be saved (%1). A running agent tries again every minute; "
                "without one, put that right and make the change again"_s.arg(error->message));
    return ExitCode::someFailed;
}

} // namespace quillon

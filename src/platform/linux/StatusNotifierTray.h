#pragma once

#include "platform/TrayItem.h"
#include "platform/linux/DesktopBus.h"
#include "platform/linux/MenuObject.h"
#include "platform/linux/StatusNotifierObject.h"

#include <QDBusServiceWatcher>

namespace quillon {

/// Our item in the desktop's status area, by the StatusNotifierItem protocol. A status area that
/// comes later, or comes back, gets it too.
class StatusNotifierTray final : public QObject, public TrayItem {
    Q_OBJECT

public:
    /// Borrows the bus.
    explicit StatusNotifierTray(DesktopBus& bus) : bus_(bus) {}

    void start(const TrayLook& look, std::vector<TrayMenuItem> menu, Handlers handlers) override;
    void setLook(const TrayLook& look) override { item_.setLook(look); }
    void setMenu(std::vector<TrayMenuItem> menu) override { menu_.setItems(std::move(menu)); }
    [[nodiscard]] Place place() const override { return place_; }

private Q_SLOTS:
    void askForHost();

private:
    void connectTo(QDBusConnection connection);
    void registerItem();
    void setPlace(Place place);

    DesktopBus& bus_;
    Handlers handlers_;
    StatusNotifierObject item_;
    MenuObject menu_;
    std::optional<QDBusConnection> connection_;
    std::unique_ptr<QDBusServiceWatcher> watching_;
    Place place_ = Place::unknown;
};

} // namespace quillon

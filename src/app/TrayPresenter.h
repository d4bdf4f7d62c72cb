#pragma once

#include "platform/TrayItem.h"
#include "store/AppStore.h"
#include "ui/DesktopLook.h"

namespace quillon {

/// Shows in the tray how the store is doing, and what can be done from there.
class TrayPresenter final : public QObject {
    Q_OBJECT

public:
    /// All borrowed.
    struct Surroundings {
        AppStore& store;
        TrayItem& item;
        DesktopLook& desktop;
        QString desktopNames; ///< see panelTextColor()
    };

    explicit TrayPresenter(const Surroundings& around, QObject* parent = nullptr);

    void start();

Q_SIGNALS:
    void activated(QPoint point); ///< see TrayItem::Handlers
    void placeChanged();
    void openRequested();
    void quitRequested();

private:
    [[nodiscard]] TrayLook look() const;
    [[nodiscard]] std::vector<TrayMenuItem> menu();

    Surroundings around_;
};

} // namespace quillon

#include "app/TrayPresenter.h"

#include "app/TrayGlyph.h"

#include <QGuiApplication>
#include <QPoint>

namespace quillon {

TrayPresenter::TrayPresenter(const Surroundings& around, QObject* parent)
    : QObject(parent), around_(around) {}

void TrayPresenter::start() {
    around_.item.start(look(), menu(),
                       {.activated = [this](int x, int y) { Q_EMIT activated(QPoint(x, y)); },
                        .placeChanged = [this] { Q_EMIT placeChanged(); }});
    const auto relook = [this] { around_.item.setLook(look()); };
    connect(&around_.store, &AppStore::needsAttentionChanged, this, relook);
    connect(&around_.store, &AppStore::isPausedChanged, this, [this, relook] {
        relook();
        around_.item.setMenu(menu());
    });
    connect(&around_.desktop, &DesktopLook::changed, this, relook);
}

TrayLook TrayPresenter::look() const {
    const bool needsAttention = around_.store.needsAttention();
    QString state;
    if (around_.store.isPaused())
        state = tr("Paused — nothing runs automatically");
    else if (needsAttention)
        state = tr("Something needs a look");
    return {.pictures = trayGlyph(panelTextColor(around_.desktopNames, around_.desktop.isDark()),
                                  needsAttention),
            .toolTip = state,
            .needsAttention = needsAttention,
            .isRightToLeft = QGuiApplication::isRightToLeft()};
}

std::vector<TrayMenuItem> TrayPresenter::menu() {
    AppStore& store = around_.store;
    return {
        {.label = tr("Open Quillon"), .chosen = [this] { Q_EMIT openRequested(); }},
        {.label = store.isPaused() ? tr("Resume") : tr("Pause"),
         .chosen = [&store] { store.setPaused(!store.isPaused()); }},
        {.label = {}, .chosen = {}},
        {.label = tr("Quit Quillon"), .chosen = [this] { Q_EMIT quitRequested(); }},
    };
}

} // namespace quillon

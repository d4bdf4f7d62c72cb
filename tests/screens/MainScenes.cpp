#include "Scene.h"
#include "model/Uuid.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

void press(QWindow& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&window, &event);
    }
}

Scene showing(const QString& name, const QString& folder,
              const std::function<void(Stage&)>& then = {}) {
    return {.name = name, .arrange = [folder, then](Stage& stage) {
                stage.model.folders()->select(uuidText(stage.home.folderID(folder)));
                if (then)
                    then(stage);
            }};
}

QString rule(Stage& stage, const QString& name) {
    return uuidText(stage.home.ruleID(name));
}

} // namespace

std::vector<Scene> mainScenes() {
    const QString downloads = u"Downloads"_s;
    return {
        {.name = u"main"_s},
        showing(u"main-empty"_s, u"Receipts"_s),
        {.name = u"main-no-folders"_s, .home = SampleHome::Contents::noFolders},
        showing(u"main-missing"_s, u"Camera Card"_s),
        showing(u"main-denied"_s, u"Team Drive"_s),
        showing(u"main-errors"_s, u"Scans"_s),
        showing(u"main-paused"_s, downloads,
                [](Stage& stage) { stage.model.folders()->togglePaused(); }),
        showing(u"main-chat"_s, downloads, [](Stage& stage) { stage.model.chat()->setOpen(true); }),
        showing(u"main-off"_s, downloads,
                [](Stage& stage) {
                    RuleListModel& rules = *stage.model.page()->rules();
                    rules.setEnabled(rule(stage, u"File invoices"_s), false);
                    rules.duplicate(rule(stage, u"Name and file receipts"_s));
                    rules.remove(rule(stage, u"Big videos"_s));
                }),
        showing(
            u"main-remove"_s, downloads,
            [](Stage& stage) { stage.model.folders()->remove(stage.model.page()->folderID()); }),
        showing(u"main-menu"_s, downloads,
                [](Stage& stage) { press(stage.window, Qt::Key_Return, Qt::AltModifier); }),
        showing(u"main-timing"_s, downloads,
                [](Stage& stage) { press(stage.window, Qt::Key_T, Qt::ControlModifier); }),
        showing(u"main-rule-menu"_s, downloads,
                [](Stage& stage) {
                    for (int area = 0; area < 3; ++area)
                        press(stage.window, Qt::Key_F6);
                    press(stage.window, Qt::Key_Down);
                    press(stage.window, Qt::Key_F10, Qt::ShiftModifier);
                }),
        showing(u"main-focus"_s, downloads,
                [](Stage& stage) {
                    for (int area = 0; area < 4; ++area)
                        press(stage.window, Qt::Key_F6);
                    press(stage.window, Qt::Key_Down);
                }),
    };
}

} // namespace quillon::testing

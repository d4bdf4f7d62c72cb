#include "Scene.h"
#include "model/Uuid.h"

#include <QQuickItem>
#include <QTimer>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The first item of that QML type.
QQuickItem* find(QQuickItem* root, const QByteArray& type) {
    if (QByteArray(root->metaObject()->className()).startsWith(type + "_QMLTYPE"))
        return root;
    for (QQuickItem* const child : root->childItems())
        if (QQuickItem* const found = find(child, type))
            return found;
    return nullptr;
}

std::function<void(Stage&)> calling(const QByteArray& type, const char* method) {
    return [type, method](Stage& stage) {
        // What a list shows is there once it has been laid out.
        QTimer::singleShot(400, &stage.window, [&stage, type, method] {
            QMetaObject::invokeMethod(find(stage.window.contentItem(), type), method);
        });
    };
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
        showing(u"main-menu"_s, downloads, calling("FolderDetail", "openMenu")),
        showing(u"main-timing"_s, downloads, calling("FolderDetail", "openTiming")),
        showing(u"main-rule-menu"_s, downloads, calling("RuleCard", "openMenu")),
        showing(u"main-focus"_s, downloads, calling("RuleList", "takeFocus")),
    };
}

} // namespace quillon::testing

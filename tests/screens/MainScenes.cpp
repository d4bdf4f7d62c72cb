#include "Items.h"
#include "SampleFiles.h"
#include "model/Uuid.h"

#include <sys/stat.h>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

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

/// Takes the first rule by its grip to that place.
std::function<void(Stage&)> dragging(QPointF to) {
    return [to](Stage& stage) {
        later(stage, [&stage, to] {
            QQuickItem* const hand = findItem(stage, "RuleInHand");
            const auto card = QVariant::fromValue<QObject*>(findItem(stage, "RuleCard"));
            QMetaObject::invokeMethod(hand, "take", Q_ARG(QVariant, card));
            QMetaObject::invokeMethod(hand, "move", Q_ARG(QVariant, to));
        });
    };
}

std::function<void(Stage&)> withMenu(const std::vector<Qt::Key>& keys) {
    return [keys](Stage& stage) {
        calling("FolderDetail", "openMenu")(stage);
        later(stage, [&stage, keys] { later(stage, [&stage, keys] { press(stage, keys); }); });
    };
}

/// A run that isn't over yet.
void runLong(Stage& stage) {
    stage.store.saveRule(
        {.name = u"Take your time"_s,
         .conditions = {{.attribute = ConditionAttribute::extension, .value = u"pdf"_s}},
         .actions = {{.type = ActionType::runScript, .scriptCommand = u"sleep 1"_s}}},
        stage.home.folderID(u"Desktop"_s));
    for (int i = 0; i < 4; ++i)
        makeFile(stage.home.at("Desktop/Plan " + std::to_string(i) + ".pdf"), 900, 3);
    stage.model.page()->run();
}

void failToSave(Stage& stage) {
    const std::string data = stage.home.at(".local/share/Quillon");
    ::chmod(data.c_str(), 0500);
    QObject::connect(&stage.model, &QObject::destroyed, [data] { ::chmod(data.c_str(), 0700); });
    stage.model.page()->setTint(4);
}

} // namespace

std::vector<Scene> mainScenes() {
    using enum Qt::Key;
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
        showing(u"main-menu-colour"_s, downloads,
                withMenu({Key_Down, Key_Down, Key_Down, Key_Down, Key_Down, Key_Right})),
        showing(u"main-drag"_s, downloads, dragging({400, 330})),
        showing(u"main-drag-copy"_s, downloads, dragging({120, 157})),
        showing(u"main-running"_s, u"Desktop"_s, runLong),
        showing(u"main-save-failed"_s, downloads, failToSave),
        showing(u"main-copy-menu"_s, downloads, calling("RuleCard", "openCopyMenu")),
        showing(u"main-rule-menu"_s, downloads, calling("RuleCard", "openMenu")),
        showing(u"main-focus"_s, downloads, calling("RuleList", "takeFocus")),
    };
}

} // namespace quillon::testing

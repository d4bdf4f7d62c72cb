#include "Items.h"
#include "ui/history/HistoryModel.h"
#include "ui/history/PopoverModel.h"

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

Scene history(const QString& name, const std::function<void(HistoryModel&)>& look = {}) {
    return {.name = name, .arrange = [look](Stage& stage) {
                HistoryModel& model = *stage.model.history();
                model.open();
                if (look)
                    look(model);
            }};
}

void openBatch(HistoryModel& model) {
    for (const HistoryRow& row : std::vector(model.rows()))
        if (row.isBatch)
            model.setOpen(row.key, true);
}

Scene popover(
    const QString& name, SampleHome::Contents home = SampleHome::Contents::full,
    const std::function<void(Stage&)>& arrange = [](Stage&) {}) {
    return {.name = name, .window = u"PopoverWindow"_s, .home = home, .arrange = arrange};
}

void addFineFolders(Stage& stage) {
    for (const char* folder : {"Downloads", "Desktop", "Documents/Receipts"})
        if (const auto added = stage.store.addFolder(QString::fromStdString(stage.home.at(folder)));
            added && folder == std::string("Desktop"))
            stage.store.setTiming(TidyTiming::hourly, *added);
}

} // namespace

std::vector<Scene> historyScenes() {
    Scene empty = history(u"history-empty"_s);
    empty.home = SampleHome::Contents::noFolders;
    return {
        history(u"history"_s),
        history(u"history-batch"_s, openBatch),
        history(u"history-search"_s,
                [](HistoryModel& model) { model.setSearchText(u"screenshot"_s); }),
        history(u"history-errors"_s, [](HistoryModel& model) { model.openErrors(); }),
        history(u"history-no-match"_s,
                [](HistoryModel& model) { model.setSearchText(u"no such file"_s); }),
        empty,
        {.name = u"history-folders"_s,
         .arrange =
             [](Stage& stage) {
                 stage.model.history()->open();
                 opening("PillPicker", 1)(stage);
             }},
        popover(u"popover"_s),
        popover(u"popover-fine"_s, SampleHome::Contents::noFolders, addFineFolders),
        popover(u"popover-paused"_s, SampleHome::Contents::noFolders,
                [](Stage& stage) {
                    addFineFolders(stage);
                    stage.store.setPaused(true);
                }),
        popover(u"popover-empty"_s, SampleHome::Contents::noFolders),
    };
}

} // namespace quillon::testing

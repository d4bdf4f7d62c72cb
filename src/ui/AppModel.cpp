#include "ui/AppModel.h"

#include "assistant/DobbinJudge.h"
#include "assistant/QuietJudge.h"
#include "assistant/backends/AIManager.h"
#include "service/Services.h"
#include "ui/editor/DobbinAvailability.h"

namespace quillon {

namespace {

RuleEditor::Surroundings editorSurroundings(const AppModel::Surroundings& around, Sheets& sheets,
                                            Toasts& toasts) {
    Services& services = around.services;
    return {
        .store = around.store,
        .sheets = sheets,
        .toasts = toasts,
        .fileChooser = around.fileChooser,
        .probing = {.platform = services.platform(),
                    .background = services.background(),
                    .timers = services.timers(),
                    .makeJudge =
                        [&services] { return std::make_unique<QuietJudge>(services.judge()); }},
        .drafting = {.platform = services.platform(),
                     .background = services.background(),
                     .assistant = [&services]() -> ModelAccess& { return services.assistant(); },
                     .whyUnavailable =
                         [&services] { return whyDobbinIsUnavailable(services.assistant()); }}};
}

} // namespace

AppModel::AppModel(const Surroundings& around, QObject* parent)
    : QObject(parent)
    , folders_({.store = around.store,
                .fileSystem = around.services.platform().fileSystem,
                .background = around.services.background(),
                .fileChooser = around.fileChooser,
                .toasts = toasts_,
                .home = around.services.platform().folders.home})
    , page_({.store = around.store,
             .platform = around.services.platform(),
             .background = around.services.background(),
             .timers = around.services.timers(),
             .fileChooser = around.fileChooser,
             .toasts = toasts_})
    , entries_({.store = around.store,
                .fileSystem = around.services.platform().fileSystem,
                .background = around.services.background(),
                .fileManager = around.fileManager,
                .toasts = toasts_})
    , editor_(editorSurroundings(around, sheets_, toasts_))
    , preview_(around.store)
    , cleanup_(around.store)
    , presets_(around.store)
    , suggestions_(around.store)
    , history_({.store = around.store,
                .clock = around.services.platform().clock,
                .background = around.services.background(),
                .sheets = sheets_,
                .toasts = toasts_})
    , popover_(around.store, around.services.platform().clock, around.services.timers())
    , chat_(around.store)
    , settings_(around.store)
    , onboarding_(around.store) {}

AppModel::~AppModel() = default;

} // namespace quillon

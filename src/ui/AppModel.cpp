#include "ui/AppModel.h"

#include "assistant/DobbinJudge.h"
#include "assistant/QuietJudge.h"
#include "assistant/backends/AIManager.h"
#include "service/Services.h"

namespace quillon {

namespace {

std::function<std::unique_ptr<FileJudge>()> quietJudges(Services& services) {
    return [&services] { return std::make_unique<QuietJudge>(services.judge()); };
}

RuleEditor::Surroundings
editorSurroundings(const AppModel::Surroundings& around, Sheets& sheets, Toasts& toasts,
                   std::function<QCoro::Task<QString>()> whyDobbinIsUnavailable) {
    Services& services = around.services;
    return {
        .store = around.store,
        .sheets = sheets,
        .toasts = toasts,
        .fileChooser = around.fileChooser,
        .probing = {.platform = services.platform(),
                    .background = services.background(),
                    .timers = services.timers(),
                    .makeJudge = quietJudges(services)},
        .drafting = {.platform = services.platform(),
                     .background = services.background(),
                     .assistant = [&services]() -> ModelAccess& { return services.assistant(); },
                     .whyUnavailable = std::move(whyDobbinIsUnavailable)}};
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
    , editor_(editorSurroundings(around, sheets_, toasts_,
                                 [this, &services = around.services] {
                                     return whyDobbinIsUnavailable(services.assistant());
                                 }))
    , preview_({.store = around.store,
                .platform = around.services.platform(),
                .background = around.services.background(),
                .timers = around.services.timers(),
                .sheets = sheets_,
                .makeJudge = quietJudges(around.services)})
    , cleanup_({.store = around.store,
                .platform = around.services.platform(),
                .background = around.services.background(),
                .timers = around.services.timers(),
                .fileManager = around.fileManager,
                .sheets = sheets_,
                .toasts = toasts_,
                .makeJudge = quietJudges(around.services)})
    , presets_(around.store, sheets_)
    , suggestions_({.store = around.store,
                    .clock = around.services.platform().clock,
                    .background = around.services.background(),
                    .timers = around.services.timers(),
                    .toasts = toasts_,
                    .memory = around.services.suggestionMemory(),
                    .suggestions = [&services = around.services]() -> FolderSuggestions& {
                        return services.suggestions();
                    }})
    , history_({.store = around.store,
                .clock = around.services.platform().clock,
                .background = around.services.background(),
                .sheets = sheets_,
                .toasts = toasts_})
    , popover_(around.store, around.services.platform().clock, around.services.timers())
    , chat_(
          {.store = around.store,
           .settings = around.services.settings(),
           .clock = around.services.platform().clock,
           .sheets = sheets_,
           .toasts = toasts_,
           .chat = [&services = around.services]() -> DobbinChat& { return services.chat(); },
           .assistant = [&services = around.services]() -> AIManager& {
               return services.assistant();
           },
           .writeRule = [this](const QString& folderID,
                               const QString& sentence) { editor_.describe(folderID, sentence); }})
    , settings_({.store = around.store,
                 .settings = around.services.settings(),
                 .clock = around.services.platform().clock,
                 .storage = around.services.storage(),
                 .background = around.services.background(),
                 .timers = around.services.timers(),
                 .fileChooser = around.fileChooser,
                 .fileManager = around.fileManager,
                 .loginItem = around.loginItem,
                 .assistant = [&services = around.services]() -> AIManager& {
                     return services.assistant();
                 },
                 .introduce = [this] { onboarding_.start(); }})
    , onboarding_({.store = around.store,
                   .settings = around.services.settings(),
                   .fileSystem = around.services.platform().fileSystem,
                   .background = around.services.background(),
                   .fileChooser = around.fileChooser,
                   .loginItem = around.loginItem,
                   .toasts = toasts_,
                   .onDevice = *settings_.onDevice(),
                   .home = around.services.platform().folders.home,
                   .places = userPlaces}) {
    connect(settings_.claude(), &ClaudeSettings::changed, this,
            [this] { suggestions_.setWanted(settings_.claude()->suggestRules()); });
    connect(settings_.onDevice(), &OnDeviceCard::changed, this, [this] {
        if (!settings_.onDevice()->isChecking() && !settings_.onDevice()->isDownloading())
            lookForDobbin();
    });
}

AppModel::~AppModel() = default;

QCoro::Task<QString> AppModel::whyDobbinIsUnavailable(AIManager& manager) {
    for (const auto signal : {&AIManager::settingsChanged, &AIManager::keySuffixChanged})
        connect(&manager, signal, this, &AppModel::lookForDobbin, Qt::UniqueConnection);
    return manager.whyUnavailable();
}

/// A rule is written while he is being set up in the settings.
void AppModel::lookForDobbin() {
    if (editor_.isOpen())
        editor_.dobbin()->refresh();
}

} // namespace quillon

#pragma once

#include "ui/Sheets.h"
#include "ui/Toasts.h"
#include "ui/dobbin/ChatModel.h"
#include "ui/dobbin/OnboardingModel.h"
#include "ui/dobbin/SettingsModel.h"
#include "ui/editor/RuleEditor.h"
#include "ui/folders/EntryCommands.h"
#include "ui/folders/FolderListModel.h"
#include "ui/folders/FolderPage.h"
#include "ui/history/HistoryModel.h"
#include "ui/history/PopoverModel.h"
#include "ui/review/CleanupModel.h"
#include "ui/review/PresetListModel.h"
#include "ui/review/PreviewModel.h"
#include "ui/review/SuggestionListModel.h"

#include <QObject>

namespace quillon {

class FileChooser;
class FileManager;
class LoginItem;
class Services;

/// All that QML sees of Quillon: the object that it knows as `App`. On the store's thread.
class AppModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(quillon::FolderListModel* folders READ folders CONSTANT)
    Q_PROPERTY(quillon::FolderPage* page READ page CONSTANT)
    Q_PROPERTY(quillon::EntryCommands* entries READ entries CONSTANT)
    Q_PROPERTY(quillon::RuleEditor* editor READ editor CONSTANT)
    Q_PROPERTY(quillon::PreviewModel* preview READ preview CONSTANT)
    Q_PROPERTY(quillon::CleanupModel* cleanup READ cleanup CONSTANT)
    Q_PROPERTY(quillon::PresetListModel* presets READ presets CONSTANT)
    Q_PROPERTY(quillon::SuggestionListModel* suggestions READ suggestions CONSTANT)
    Q_PROPERTY(quillon::HistoryModel* history READ history CONSTANT)
    Q_PROPERTY(quillon::PopoverModel* popover READ popover CONSTANT)
    Q_PROPERTY(quillon::ChatModel* chat READ chat CONSTANT)
    Q_PROPERTY(quillon::SettingsModel* settings READ settings CONSTANT)
    Q_PROPERTY(quillon::OnboardingModel* onboarding READ onboarding CONSTANT)
    Q_PROPERTY(quillon::Sheets* sheets READ sheets CONSTANT)
    Q_PROPERTY(quillon::Toasts* toasts READ toasts CONSTANT)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        Services& services;
        FileChooser& fileChooser;
        FileManager& fileManager;
        LoginItem& loginItem;
    };

    explicit AppModel(const Surroundings& around, QObject* parent = nullptr);
    ~AppModel() override;

    [[nodiscard]] FolderListModel* folders() { return &folders_; }
    [[nodiscard]] FolderPage* page() { return &page_; }
    [[nodiscard]] EntryCommands* entries() { return &entries_; }
    [[nodiscard]] RuleEditor* editor() { return &editor_; }
    [[nodiscard]] PreviewModel* preview() { return &preview_; }
    [[nodiscard]] CleanupModel* cleanup() { return &cleanup_; }
    [[nodiscard]] PresetListModel* presets() { return &presets_; }
    [[nodiscard]] SuggestionListModel* suggestions() { return &suggestions_; }
    [[nodiscard]] HistoryModel* history() { return &history_; }
    [[nodiscard]] PopoverModel* popover() { return &popover_; }
    [[nodiscard]] ChatModel* chat() { return &chat_; }
    [[nodiscard]] SettingsModel* settings() { return &settings_; }
    [[nodiscard]] OnboardingModel* onboarding() { return &onboarding_; }
    [[nodiscard]] Sheets* sheets() { return &sheets_; }
    [[nodiscard]] Toasts* toasts() { return &toasts_; }

private:
    QCoro::Task<QString> whyDobbinIsUnavailable(AIManager& manager);
    void lookForDobbin();

    Sheets sheets_;
    Toasts toasts_;
    FolderListModel folders_;
    FolderPage page_;
    EntryCommands entries_;
    RuleEditor editor_;
    PreviewModel preview_;
    CleanupModel cleanup_;
    PresetListModel presets_;
    SuggestionListModel suggestions_;
    HistoryModel history_;
    PopoverModel popover_;
    ChatModel chat_;
    SettingsModel settings_;
    OnboardingModel onboarding_;
};

} // namespace quillon

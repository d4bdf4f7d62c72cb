#pragma once

#include "platform/Background.h"
#include "platform/FileChooser.h"
#include "platform/Platform.h"
#include "platform/Timers.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Toasts.h"
#include "ui/folders/ActivityEntry.h"
#include "ui/folders/FolderBanner.h"
#include "ui/folders/RuleListModel.h"

#include <QVariantList>

#include <map>
#include <memory>
#include <optional>

namespace quillon {

/// The selected folder: its header, its rules, its newest activity and its banner.
class FolderPage final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasFolder READ hasFolder NOTIFY changed)
    Q_PROPERTY(QString folderID READ folderID NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(int tint READ tint NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString details READ details NOTIFY changed)
    Q_PROPERTY(bool canRun READ canRun NOTIFY changed)
    Q_PROPERTY(QString whyNotRun READ whyNotRun NOTIFY changed)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed)
    Q_PROPERTY(bool hasRules READ hasRules NOTIFY changed)
    Q_PROPERTY(bool hasActivity READ hasActivity NOTIFY changed)
    Q_PROPERTY(QStringList timings READ timings CONSTANT)
    Q_PROPERTY(int timing READ timing WRITE setTiming NOTIFY changed)
    Q_PROPERTY(bool isRecursive READ isRecursive WRITE setRecursive NOTIFY changed)
    Q_PROPERTY(bool onlyNewFiles READ onlyNewFiles WRITE setOnlyNewFiles NOTIFY changed)
    Q_PROPERTY(bool skipsOnlineOnly READ skipsOnlineOnly WRITE setSkipsOnlineOnly NOTIFY changed)
    Q_PROPERTY(QStringList tintNames READ tintNames CONSTANT)
    Q_PROPERTY(QVariantList symbols READ symbols CONSTANT)
    Q_PROPERTY(QVariantList otherFolders READ otherFolders NOTIFY otherFoldersChanged)
    Q_PROPERTY(quillon::FolderBanner banner READ banner NOTIFY changed)
    Q_PROPERTY(quillon::RuleListModel* rules READ rules CONSTANT)
    Q_PROPERTY(QAbstractItemModel* activity READ activity CONSTANT)

public:
    /// All borrowed for the page's life.
    struct Surroundings {
        AppStore& store;
        const Platform& platform;
        Background& background;
        Timers& timers;
        FileChooser& fileChooser;
        Toasts& toasts;
    };

    explicit FolderPage(const Surroundings& around, QObject* parent = nullptr);
    ~FolderPage() override;

    [[nodiscard]] bool hasFolder() const { return folder() != nullptr; }
    [[nodiscard]] QString folderID() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] int tint() const;
    [[nodiscard]] QString symbol() const;
    /// "~/Downloads · 120 files · tidied 4 minutes ago"
    [[nodiscard]] QString details() const { return details_; }
    [[nodiscard]] bool canRun() const;
    /// A sentence; empty when it can be.
    [[nodiscard]] QString whyNotRun() const;
    /// The same for any folder.
    [[nodiscard]] static QString whyNotRun(const WatchedFolder& folder, const AppStore& store);
    /// Asked for by hand, and taking long enough to be told.
    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] bool hasRules() const;
    [[nodiscard]] bool hasActivity() const { return activity_.rowCount() > 0; }
    [[nodiscard]] static QStringList timings();
    [[nodiscard]] int timing() const;
    void setTiming(int index);
    [[nodiscard]] bool isRecursive() const { return folder() && folder()->isRecursive; }
    void setRecursive(bool isRecursive);
    [[nodiscard]] bool onlyNewFiles() const {
        return folder() && around_.store.wantsOnlyNewFiles(folder()->id);
    }
    void setOnlyNewFiles(bool onlyNew);
    [[nodiscard]] bool skipsOnlineOnly() const { return folder() && folder()->skipOnlineOnly; }
    void setSkipsOnlineOnly(bool skip);
    [[nodiscard]] QStringList tintNames() const;
    [[nodiscard]] QVariantList symbols() const;
    Q_INVOKABLE void setTint(int index);
    Q_INVOKABLE void setSymbol(const QString& name);
    /// `key` and `name` of every folder that a rule of this one can be copied to.
    [[nodiscard]] QVariantList otherFolders() const { return otherFolders_; }
    [[nodiscard]] const FolderBanner& banner() const { return banner_; }
    [[nodiscard]] RuleListModel* rules() { return &rules_; }
    /// The newest eight entries of this folder.
    [[nodiscard]] QAbstractItemModel* activity() { return &activity_; }

    /// Tidies this folder now, and tells what came of it.
    Q_INVOKABLE void run();
    /// The same for a folder that need not be the selected one.
    Q_INVOKABLE void runFolder(const QString& folderID);
    Q_INVOKABLE void runAll();
    Q_INVOKABLE void importRules();
    Q_INVOKABLE void exportRules();
    /// The id of the newest entry of this folder that can be undone; empty without one.
    Q_INVOKABLE QString newestUndoable() const;
    /// What that button of the banner says.
    Q_INVOKABLE void actOnBanner(int action);

Q_SIGNALS:
    void changed();
    void otherFoldersChanged();
    void locateAsked(const QString& folderID);
    void removeAsked(const QString& folderID);
    void errorsAsked(const QString& folderID);

private:
    /// A run that was asked for, here or elsewhere.
    struct Run {
        std::uint64_t number = 0;
        bool isTold = false; ///< it takes long enough for that
        std::unique_ptr<Timer> delay = {};
    };
    enum class Trouble { none, save, denied, missing, paused, errors, watch, opening };

    [[nodiscard]] const WatchedFolder* folder() const { return around_.store.selectedFolder(); }
    [[nodiscard]] FolderAccess access() const;
    void refresh();
    void refreshDetails();
    void refreshBanner();
    void countFiles();
    void beginRun(const QUuid& folderID, std::uint64_t number);
    void endRun(const RunReport& report);
    [[nodiscard]] Trouble findTrouble() const;

    Surroundings around_;
    RuleListModel rules_;
    KeyedRows<ActivityEntry> activity_;
    QVariantList otherFolders_;
    QString details_;
    FolderBanner banner_;
    Trouble trouble_ = Trouble::none;
    bool isOpeningTold_ = false;
    std::map<QUuid, Run> runs_;
    /// Of the folder that `countedFor_` names, at its path and depth.
    std::optional<std::size_t> fileCount_;
    QString countedFor_;
    bool isCounting_ = false;
    bool isCountDue_ = false;
    std::unique_ptr<Timer> minutes_;
};

} // namespace quillon

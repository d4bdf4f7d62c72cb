#pragma once

#include "engine/RuleEngine.h"
#include "platform/Background.h"
#include "platform/FolderWatcher.h"
#include "platform/Notifier.h"
#include "platform/Platform.h"
#include "platform/Settings.h"
#include "platform/Timers.h"
#include "store/FolderAccess.h"
#include "store/PendingRuleEdit.h"
#include "store/QuestionResolver.h"
#include "store/RuleCopy.h"
#include "store/RunReport.h"
#include "store/StoreSession.h"
#include "store/Undo.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// Where rules that are added come from.
enum class RuleSource : std::uint8_t { manual, preset, suggestion, dobbin, keepItTidy };

/// The one shared state of a running Quillon: the watched folders, the activity log, and every
/// operation that changes them. Owns the state file, the watching and the schedules. Everything
/// here is to be used on the thread that made it, which runs an event loop; work on files happens
/// in the background, and its results are applied here.
class AppStore final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isPaused READ isPaused WRITE setPaused NOTIFY isPausedChanged)
    Q_PROPERTY(bool needsAttention READ needsAttention NOTIFY needsAttentionChanged)

public:
    enum class Life {
        instance, ///< lives on: rewrites the state file at launch, watches, keeps schedules
        command,  ///< does what it is asked to do and ends
    };

    /// All borrowed for the store's life.
    struct Surroundings {
        const Platform& platform;
        Storage& storage;
        Settings& settings;
        Timers& timers;
        Background& background;
        FolderWatching& watching;
        Notifier& notifier;
        QuestionResolver& resolver;
        /// A fresh engine for one run on another thread.
        std::function<RuleEngine(EngineSettings)> makeEngine;
    };

    AppStore(std::unique_ptr<StoreSession> session, const Surroundings& surroundings, Life life,
             QObject* parent = nullptr);
    ~AppStore() override;

    // What it knows.

    [[nodiscard]] const std::vector<WatchedFolder>& folders() const;
    /// Saves. Every change of a folder or a rule comes down to this.
    void setFolders(std::vector<WatchedFolder> folders);
    [[nodiscard]] const std::vector<LogEntry>& recentLogs() const; ///< newest first
    [[nodiscard]] const QHash<QString, QSet<QString>>& processedFiles() const;
    [[nodiscard]] const QHash<QUuid, FolderAccess>& folderAccess() const;
    [[nodiscard]] bool isPaused() const;
    [[nodiscard]] std::optional<QUuid> selectedFolderID() const;
    void setSelectedFolderID(std::optional<QUuid> folderID);
    [[nodiscard]] const std::optional<RuleCopy>& lastRuleCopy() const;
    [[nodiscard]] const std::optional<PendingRuleEdit>& pendingRuleEdit() const;
    void setPendingRuleEdit(std::optional<PendingRuleEdit> edit);
    /// Why the last save failed; nothing once one has succeeded.
    [[nodiscard]] const std::optional<Error>& lastSaveError() const;
    /// Sentences about folders that can't be watched as they should.
    [[nodiscard]] QStringList watchWarnings() const;
    /// Whether one of them is about this folder.
    [[nodiscard]] bool watchWarnsOf(const QUuid& folderID) const;
    /// Sentences about what was found when the store was opened.
    [[nodiscard]] const QStringList& openingWarnings() const;
    [[nodiscard]] const QHash<QUuid, Timestamp>& lastScheduledRun() const;

    [[nodiscard]] const WatchedFolder* folder(const QUuid& folderID) const;
    [[nodiscard]] const WatchedFolder* folderAt(const QString& path) const;
    [[nodiscard]] const WatchedFolder* selectedFolder() const;
    /// Whether only new files count in the folder, or will as soon as the others are known.
    [[nodiscard]] bool wantsOnlyNewFiles(const QUuid& folderID) const;
    /// Some folder is not `ok`, or something went wrong within the last day.
    [[nodiscard]] bool needsAttention() const;
    [[nodiscard]] std::size_t recentErrorCount(const QUuid& folderID) const; ///< last day

    /// Nothing is ever written while it is set.
    bool isPreview = false;

    // Folders. An unknown folder is left alone; each saves.

    /// Watches the folder and tidies it; nothing when that path is watched already. Returns the
    /// folder's id.
    std::optional<QUuid> addFolder(const QString& path);
    void removeFolder(const QUuid& folderID);
    /// The folder is at that path now: it keeps its id, its rules and its choices, and is tidied
    /// there; one that tidies only new files moves once it is known what is there. False, and
    /// nothing is changed, when it is unknown or another is watched at that path.
    bool relocateFolder(const QString& path, const QUuid& folderID);
    void setColor(std::optional<int> index, const QUuid& folderID);
    void setSymbol(const QString& symbolName, const QUuid& folderID);
    void setRecursive(bool isRecursive, const QUuid& folderID);
    void setSkipOnlineOnly(bool skip, const QUuid& folderID);
    /// Switched on, the files that are there now count as handled. They are listed in the
    /// background: the folder is changed, and tidied again, once they are known.
    void setOnlyNewFiles(bool onlyNew, const QUuid& folderID);
    void setTiming(TidyTiming timing, const QUuid& folderID);
    void setPaused(bool paused);

    // Rules. An unknown folder or rule is left alone; each saves.

    void addRules(std::vector<Rule> rules, const QUuid& folderID, RuleSource source);
    void saveRule(const Rule& rule, const QUuid& folderID);
    void deleteRule(const QUuid& ruleID, const QUuid& folderID);
    void setRuleEnabled(bool enabled, const QUuid& ruleID, const QUuid& folderID);
    void duplicateRule(const QUuid& ruleID, const QUuid& folderID);
    void copyRule(const QUuid& ruleID, const QUuid& targetFolderID);
    void reorderRules(const QUuid& folderID, const std::vector<QUuid>& order);
    void moveRuleBy(int offset, const QUuid& ruleID, const QUuid& folderID);
    void moveRuleBefore(const QUuid& otherRuleID, const QUuid& ruleID, const QUuid& folderID);
    [[nodiscard]] Expected<void> exportRules(const QUuid& folderID, const std::string& path) const;
    /// The number of rules added. Fails, and changes nothing, when the file can't be read.
    [[nodiscard]] Expected<std::size_t> importRules(const std::string& path, const QUuid& folderID);

    // Runs.

    /// Tidies the folder in the background and returns the number of the run, 0 for an unknown
    /// folder. While the folder is being tidied already it comes after that; two that wait are one.
    std::uint64_t runRules(const QUuid& folderID, RunCause cause = RunCause::automatic);
    void runAllRules(RunCause cause = RunCause::automatic);
    /// To be called every minute.
    void checkSchedules();
    /// The number of the newest run.
    [[nodiscard]] std::uint64_t lastRunNumber() const;
    /// Calls `done` once every run up to that number has finished; at once when they have.
    void afterRuns(std::uint64_t number, std::function<void()> done);
    /// Those of these runs that have not finished end after the file that they are at.
    void endRunsEarly(std::uint64_t first, std::uint64_t last);
    /// Whether the folder will be looked at again because files in it were still settling.
    [[nodiscard]] bool isSettling(const QUuid& folderID) const;
    /// Whether the folder is being tidied or will be looked at again by itself: files in it are
    /// settling, or the assistant is being asked.
    [[nodiscard]] bool isUnsettled(const QUuid& folderID) const;
    /// Hands what the rules ask on to the assistant, now and after every run. An instance does so
    /// from the start; a command would end before the answers come.
    void askQuestions();

    /// What a clean-up, or a one-shot run over a folder that need not be watched, is to do.
    struct Cleanup {
        WatchedFolder folder;
        std::vector<Rule> rules;
        ReadyFiles files;
        QUuid batchID;
        EngineSettings settings = {};
        Progress progress = {}; ///< called on the background thread
    };
    struct CleanupReport {
        RunResult run;
        std::optional<Error> unsaved = {};
    };
    void runCleanup(Cleanup cleanup, const std::function<void(CleanupReport)>& done);

    struct UndoReport {
        std::vector<UndoOutcome> outcomes;
        std::optional<Error> unsaved = {};
    };
    /// Takes back the entries with these ids, in log order. `progress` and `mayContinue` are called
    /// on the background thread.
    void undo(std::vector<QUuid> entryIDs, std::function<void(UndoReport)> done,
              Progress progress = {}, std::function<bool()> mayContinue = {});
    /// The batch's entries that can be undone.
    void undoCleanup(const QUuid& batchID, std::function<void(UndoReport)> done,
                     Progress progress = {}, std::function<bool()> mayContinue = {});

    /// What tidying the folder now would do; empty for an unknown one. Looks at the disk at once.
    [[nodiscard]] std::vector<PreviewItem> preview(const QUuid& folderID) const;

    /// Looks in the background at which folders can be listed.
    void refreshAccess();

    /// Starts nothing more, lets what is under way end, saves, and calls `done`.
    void finish(std::function<void()> done);
    /// What is under way ends after the file that it is at.
    void hurry();

Q_SIGNALS:
    void foldersChanged();
    void recentLogsChanged();
    void folderAccessChanged();
    void isPausedChanged();
    void selectedFolderIDChanged();
    void lastRuleCopyChanged();
    void pendingRuleEditChanged();
    void lastSaveErrorChanged();
    void watchWarningsChanged();
    void needsAttentionChanged();
    /// Of an instance, within a minute of local midnight or of waking up on another day.
    void dayChanged();
    /// The folder will be tidied because the user wants it now, by the run with that number.
    void runAsked(const QUuid& folderID, std::uint64_t number);
    void runFinished(const quillon::RunReport& report);
    /// After the runs that it leads to have been asked for.
    void questionsResolved(const quillon::QuestionsOutcome& outcome);

private:
    struct State;

    void startLiving();
    void syncWatching();
    void updateAttention();
    void compareAccess(const RunReport& report);
    void foldersEdited();
    void countFrom(const WatchedFolder& folder);
    void arrived(const QUuid& folderID);
    template <typename Edit>
    bool update(const QUuid& folderID, const Edit& edit);
    template <typename Edit>
    void updateRule(const QUuid& ruleID, const QUuid& folderID, const Edit& edit);

    std::unique_ptr<State> state_;
};

} // namespace quillon

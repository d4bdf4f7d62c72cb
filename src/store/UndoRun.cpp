#include "store/UndoRun.h"

#include "model/Uuid.h"
#include "platform/FileSystem.h"

#include <QSet>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// No path of a folder, so that undoing takes turns with nothing else.
constexpr QLatin1String undoLane("undo");

struct UndoRun {
    std::vector<QUuid> entryIDs;
    std::function<void(AppStore::UndoReport)> done;
    Progress progress;
    std::function<bool()> mayContinue;

    std::shared_ptr<StoreSession> session = {};
    std::unique_ptr<JournalledRun> journal = {};
    std::vector<LogEntry> entries = {};
    AppStore::UndoReport report = {};
    QHash<QUuid, QString> keys = {}; ///< of the files taken back, by their entry

    /// In the background.
    void perform(const Platform& platform) {
        report.outcomes =
            Undo(platform.fileSystem, platform.trash, *journal).run(entries, progress, mayContinue);
        for (const UndoOutcome& outcome : report.outcomes)
            if (outcome.restored)
                if (const auto status = platform.fileSystem.status(*outcome.restored))
                    keys.insert(outcome.entry.id, fileKey(*outcome.restored, *status));
    }
};

std::vector<LogEntry> chosen(const std::vector<LogEntry>& logs, const std::vector<QUuid>& ids) {
    const QSet<QUuid> wanted(ids.begin(), ids.end());
    std::vector<LogEntry> entries;
    for (const LogEntry& entry : logs)
        if (wanted.contains(entry.id))
            entries.push_back(entry);
    return entries;
}

/// What has been taken back is where its rule found it. That rule must not act on it at once again.
void leaveAlone(StoreCore& core, const UndoRun& run) {
    std::vector<RunMemory::ActedOn> files;
    for (const UndoOutcome& outcome : run.report.outcomes) {
        const LogEntry& entry = outcome.entry;
        const WatchedFolder* const folder = entry.folderID ? core.folder(*entry.folderID) : nullptr;
        const QString key = run.keys.value(entry.id);
        if (!folder || key.isEmpty())
            continue;
        files.push_back({.folderID = folder->id, .ruleName = entry.ruleName, .fileKey = key});
        if (folder->onlyNewFiles)
            core.state().processedFiles[uuidText(folder->id)].insert(key);
    }
    core.memory.leaveAlone(files, core.state().folders, core.now());
}

void takeIn(StoreCore& core, UndoRun& run) {
    QSet<QUuid> undone;
    for (const UndoOutcome& outcome : run.report.outcomes)
        if (outcome.restored)
            undone.insert(outcome.entry.id);
    leaveAlone(core, run);
    if (!undone.isEmpty()) {
        std::erase_if(core.state().logs,
                      [&](const LogEntry& entry) { return undone.contains(entry.id); });
        Q_EMIT core.store.recentLogsChanged();
    }
    run.journal.reset();
    if (!undone.isEmpty() || core.session->journal().awaitsSave())
        if (const auto saved = core.save(); !saved)
            run.report.unsaved = saved.error();
}

} // namespace

void startUndo(StoreCore& core, std::vector<QUuid> entryIDs,
               std::function<void(AppStore::UndoReport)> done, Progress progress,
               std::function<bool()> mayContinue) {
    const auto run = std::make_shared<UndoRun>(
        UndoRun{.entryIDs = std::move(entryIDs),
                .done = std::move(done),
                .progress = std::move(progress),
                .mayContinue = core.unlessHurried(std::move(mayContinue))});
    const auto finish = [run] {
        if (run->done)
            run->done(std::move(run->report));
    };
    core.addWork(undoLane,
                 {.start =
                      [&core, run, finish](const std::function<void()>& ended) {
                          run->session = core.session;
                          run->journal = core.session->journal().beginRun();
                          run->entries = chosen(core.state().logs, run->entryIDs);
                          core.inBackground(
                              [run, &platform = core.around.platform] { run->perform(platform); },
                              [&core, run, finish, ended] {
                                  takeIn(core, *run);
                                  finish();
                                  ended();
                              });
                      },
                  .drop =
                      [&core, run, finish] {
                          for (const LogEntry& entry : chosen(core.state().logs, run->entryIDs))
                              run->report.outcomes.push_back(
                                  {.entry = entry,
                                   .restored = failure(ErrorKind::unsupported,
                                                       u"Quillon takes on no more work"_s),
                                   .note = {}});
                          finish();
                      }});
}

} // namespace quillon

#pragma once

#include "store/AppStore.h"
#include "store/FolderAccess.h"
#include "support/FakeJudge.h"
#include "support/FakeWatching.h"
#include "support/ManualTimers.h"
#include "support/StepwiseBackground.h"
#include "support/StoreBench.h"

#include <QHash>

#include <filesystem>

namespace quillon::testing {

struct MemorySettings final : Settings {
    QHash<QString, QString> values;

    [[nodiscard]] std::optional<QString> value(const QString& key) const override {
        const auto found = values.constFind(key);
        return found == values.cend() ? std::nullopt : std::optional(*found);
    }
    [[nodiscard]] Expected<void> setValue(const QString& key, const QString& value) override {
        values.insert(key, value);
        return {};
    }
};

struct RecordingNotifier final : Notifier {
    std::vector<Notification> posted;

    void post(const Notification& notification) override { posted.push_back(notification); }
};

/// An assistant that answers when the test says so.
struct FakeResolver final : QuestionResolver {
    bool pending = false;
    std::vector<std::function<void(QuestionsOutcome)>> asked;

    [[nodiscard]] bool hasPending() const override { return pending; }
    void resolvePending(std::function<void(QuestionsOutcome)> done) override {
        asked.push_back(std::move(done));
    }
};

/// An AppStore over real files, in which time and background work go on when the test says so.
class AppStoreBench {
public:
    StoreBench disk;
    FakeClock& clock = disk.clock;
    FakeJudge judge;
    MemorySettings settings;
    RecordingNotifier notifier;
    FakeResolver resolver;
    FakeWatching watching;
    ManualTimers timers;
    StepwiseBackground background;
    Platform platform{.fileSystem = disk.machine.platform.fileSystem,
                      .trash = disk.machine.platform.trash,
                      .tags = disk.machine.platform.tags,
                      .provenance = disk.machine.platform.provenance,
                      .cloudFiles = disk.machine.platform.cloudFiles,
                      .contentTypes = disk.machine.platform.contentTypes,
                      .processes = disk.machine.platform.processes,
                      .archives = disk.machine.platform.archives,
                      .clock = clock,
                      .folders = disk.machine.platform.folders};
    std::unique_ptr<AppStore> store;
    std::vector<RunReport> reports;

    AppStoreBench() { start(); }

    /// Anew, from what is on the disk.
    void start(AppStore::Life life = AppStore::Life::instance) {
        store.reset();
        background = {};
        store = std::make_unique<AppStore>(disk.open(), surroundings(background, timers), life);
        QObject::connect(store.get(), &AppStore::runFinished,
                         [this](const RunReport& report) { reports.push_back(report); });
        background.finish();
    }
    [[nodiscard]] AppStore::Surroundings surroundings(Background& threads, Timers& someTimers) {
        return {.platform = platform,
                .storage = disk.storage,
                .settings = settings,
                .timers = someTimers,
                .background = threads,
                .watching = watching,
                .notifier = notifier,
                .resolver = resolver,
                .makeEngine = [this](EngineSettings engineSettings) {
                    return RuleEngine(platform, judge, std::move(engineSettings));
                }};
    }

    void pass(std::chrono::milliseconds time) {
        clock.advance(time);
        timers.advance(time);
    }
    std::size_t runs(const std::function<void()>& change) {
        reports.clear();
        change();
        background.finish();
        return reports.size();
    }

    [[nodiscard]] QString path(const std::string& name) const {
        return QString::fromStdString(disk.machine.at(name));
    }
    QUuid addFolder(const std::string& name) {
        const auto folderID =
            store->addFolder(QString::fromStdString(disk.machine.makeFolder(name)));
        background.finish();
        return folderID.value_or(QUuid());
    }
    void touch(const std::string& file, Timestamp modified) const {
        std::filesystem::last_write_time(
            disk.machine.at(file),
            std::chrono::file_clock::from_sys(
                std::chrono::time_point_cast<std::chrono::file_clock::duration>(modified)));
    }
    /// What the state file holds now.
    [[nodiscard]] PersistedState saved() {
        return *StateFile(disk.storage, disk.places.state()).read(clock.now());
    }
    /// A folder in the place of the state file keeps every save from succeeding.
    void breakSaving() const {
        std::filesystem::remove(disk.places.state());
        std::filesystem::create_directories(disk.places.state() + "/x");
    }
    void mendSaving() const { std::filesystem::remove_all(disk.places.state()); }

    /// A rule that moves files of that extension to a folder.
    [[nodiscard]] Rule mover(const QString& extension, const std::string& target) const {
        Rule rule;
        rule.name = QStringLiteral("Move ") + extension;
        rule.conditions.front().attribute = ConditionAttribute::extension;
        rule.conditions.front().op = MatchOperator::is;
        rule.conditions.front().value = extension;
        rule.actions.front().destination = path(target);
        return rule;
    }
    void addRule(const Rule& rule, const QUuid& folderID) {
        store->addRules({rule}, folderID, RuleSource::manual);
        background.finish();
    }
};

} // namespace quillon::testing

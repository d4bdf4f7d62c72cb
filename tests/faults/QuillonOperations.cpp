#include "faults/QuillonOperations.h"

#include "engine/Actions.h"
#include "engine/DateFormats.h"
#include "engine/RuleEngine.h"
#include "platform/FileNames.h"
#include "platform/linux/BsdtarArchives.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxStorage.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/MimeContentTypes.h"
#include "platform/linux/NextcloudFiles.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/TrashPlaces.h"
#include "platform/linux/XattrProvenance.h"
#include "platform/linux/XattrTags.h"
#include "store/StoreSession.h"
#include "store/Undo.h"

#include <algorithm>

namespace quillon::testing {
namespace {

constexpr const char* temporaryTag = "test";

class Silent : public FileJudge {
public:
    Verdict verdict(const std::string&, const QString&) override { return Verdict::unknown; }
    std::optional<QString> smartName(const std::string&) override { return std::nullopt; }
    void fileMoved(const std::string&, const FileStatus&, const std::string&) override {}
    bool isWaiting(const std::string&) override { return false; }
};

/// The program's services, as they are at work, between the folders of a world.
struct Services {
    explicit Services(const Places& places) : trash(fileSystem, places.trash) {
        platform.folders = {.home = places.in, .data = places.data, .runtime = places.data};
    }

    LinuxFileSystem fileSystem{temporaryTag};
    LinuxTrash trash;
    XattrTags tags;
    XattrProvenance provenance;
    NextcloudFiles cloudFiles;
    MimeContentTypes contentTypes;
    LinuxProcesses processes;
    BsdtarArchives archives{processes, temporaryTag};
    SystemClock clock;
    LinuxStorage storage;
    Silent judge;
    Platform platform{fileSystem,   trash,     tags,     provenance, cloudFiles,
                      contentTypes, processes, archives, clock,      {}};
};

/// A failure leaves the thing where it was, unless it names the place of a whole copy.
Claim failed(const std::string& thing, const std::string& outFolder, const Error& error) {
    const std::string message = error.message.toStdString();
    const std::string quote = "“";
    const std::size_t at = message.find("a whole copy is at the destination as " + quote);
    if (at == std::string::npos)
        return {thing, false, thing, "", message};
    const std::size_t start = message.find(quote, at) + quote.size();
    const std::string name = message.substr(start, message.find("”", start) - start);
    return {thing, false, outFolder + "/" + name, "", message};
}

Claim claimOf(const Places& places, const std::string& thing, const Expected<Placement>& placed) {
    if (!placed)
        return failed(thing, places.out, placed.error());
    return {thing, true, placed->path, placed->losses.join(QStringLiteral(", ")).toStdString(), ""};
}

ActionResult act(const Places& places, const RuleAction& action, const std::string& path) {
    Services services(places);
    KindClassifier kinds(services.contentTypes);
    DateFormats dates;
    const EngineSettings settings;
    const auto status = services.fileSystem.status(path);
    if (!status)
        return {.succeeded = false,
                .path = path,
                .copyPath = {},
                .trashedPath = {},
                .phrases = {status.error().message}};
    return performAction(action, {.platform = services.platform,
                                  .kinds = kinds,
                                  .dates = dates,
                                  .settings = settings,
                                  .path = path,
                                  .status = *status,
                                  .counter = 1,
                                  .captures = {}});
}

/// Where the log says what the destination could not hold.
std::string lossesIn(const std::string& phrases) {
    const std::size_t at = phrases.find(" (without ");
    return at == std::string::npos ? "" : phrases.substr(at);
}

Claim claimOf(const std::string& thing, const ActionResult& result) {
    const std::string said = result.phrases.join(QStringLiteral(", ")).toStdString();
    const bool isGone = result.place == ActionResult::Place::gone;
    return {thing, result.succeeded, isGone ? result.trashedPath : result.path, lossesIn(said),
            result.succeeded ? "" : said};
}

Rule rule(const QString& extension, RuleAction action) {
    Rule made;
    made.name = extension;
    made.conditions = {
        {.attribute = ConditionAttribute::extension, .op = MatchOperator::is, .value = extension}};
    made.actions = {std::move(action)};
    return made;
}

RuleAction intoOut(ActionType type, const Places& places) {
    return {.type = type, .destination = QString::fromStdString(places.out)};
}

std::vector<Rule> tidyRules(const Places& places) {
    return {rule(QStringLiteral("pdf"), intoOut(ActionType::move, places)),
            rule(QStringLiteral("doc"), intoOut(ActionType::copy, places)),
            rule(QStringLiteral("log"), {.type = ActionType::trash}),
            rule(QStringLiteral("csv"),
                 {.type = ActionType::rename, .renamePattern = QStringLiteral("{name}-{date}")}),
            rule(QStringLiteral("jpg"), {.type = ActionType::sortIntoSubfolder})};
}

/// What the activity log says of the files of a run.
Report reportOf(const std::vector<LogEntry>& entries) {
    Report report;
    for (const LogEntry& entry : entries) {
        Claim claim;
        claim.thing = entry.originalPath->toStdString();
        claim.succeeded = !entry.isError;
        claim.place = (entry.currentPath ? *entry.currentPath
                                         : entry.trashedPath.value_or(*entry.originalPath))
                          .toStdString();
        claim.message = entry.actionSummary.toStdString();
        claim.losses = lossesIn(claim.message);
        report.push_back(claim);
    }
    return report;
}

StoreSession::Services storeServices(Services& services, const Places& places) {
    return {.storage = services.storage,
            .fileSystem = services.fileSystem,
            .clock = services.clock,
            .pause = [](std::chrono::milliseconds) {},
            .trashPlaces =
                [places](const std::string& folder) { return trashPlaces(folder, places.trash); },
            .temporaryTag = temporaryTag};
}

} // namespace

Report moveFile(const Places& places) {
    Services services(places);
    const std::string from = places.path("in/report.pdf");
    return {claimOf(places, from, services.fileSystem.move(from, places.path("out/report.pdf")))};
}

Report copyFile(const Places& places) {
    Services services(places);
    const std::string from = places.path("in/report.pdf");
    return {claimOf(places, from, services.fileSystem.copy(from, places.path("out/report.pdf")))};
}

std::function<Report(const Places&)> acting(RuleAction action) {
    return [action = std::move(action)](const Places& places) {
        const std::string path = places.path("in/report.pdf");
        return Report{claimOf(path, act(places, action, path))};
    };
}

Report unpackArchive(const Places& places) {
    const std::string archive = places.path(archiveName);
    const ActionResult result = act(places, {.type = ActionType::unpack}, archive);
    const QString unpackedTo = QStringLiteral("unpacked to ");
    Claim folder{places.path(unpackedName), false, "", "", ""};
    for (const QString& phrase : result.phrases)
        if (phrase.startsWith(unpackedTo)) {
            folder.succeeded = true;
            folder.place = places.path("in/" + phrase.mid(unpackedTo.size()).toStdString());
        }
    Claim file = claimOf(archive, result);
    folder.message = file.message;
    return {file, folder};
}

Report restoreFromTrash(const Places& places) {
    Services services(places);
    const std::string trashed = places.path("trash/files/report.pdf");
    const auto restored = services.trash.restore(trashed, places.path("out/report.pdf"));
    return {claimOf(places, trashed, restored)};
}

Report tidyFolder(const Places& places) {
    Services services(places);
    const auto session =
        StoreSession::open(StorePlaces(places.data), storeServices(services, places));
    if (!session)
        return {};
    const RuleEngine engine(services.platform, services.judge);
    WatchedFolder folder;
    folder.path = QString::fromStdString(places.in);
    const auto ready = engine.readyFiles(folder);
    if (!ready)
        return {};
    auto run = (*session)->journal().beginRun();
    const RunResult result = engine.execute(*ready, tidyRules(places), folder, {}, QUuid(), *run);
    (*session)->state().addLogs(result.entries);
    run.reset();
    // When this fails the journal stays, and what was done is still true.
    static_cast<void>((*session)->save());
    return reportOf(result.entries);
}

Report recoverTidying(const Places& places) {
    Services services(places);
    const auto session =
        StoreSession::open(StorePlaces(places.data), storeServices(services, places));
    if (!session)
        return {};
    return reportOf((*session)->state().logs);
}

namespace {

constexpr const char* undoneThings[] = {"out/a.pdf", "trash/files/c.log", "in/renamed.csv"};

std::vector<LogEntry> undoableEntries(const Places& places) {
    std::vector<LogEntry> entries;
    for (const std::string name : undoneThings) {
        LogEntry entry;
        entry.date = SystemClock().now();
        entry.undoable = true;
        entry.originalPath =
            QString::fromStdString(places.in + "/back" + name.substr(name.rfind('.')));
        (name.starts_with("trash/") ? entry.trashedPath : entry.currentPath) =
            QString::fromStdString(places.path(name));
        entries.push_back(entry);
    }
    return entries;
}

std::string placeOf(const LogEntry& entry) {
    return (entry.currentPath ? *entry.currentPath : *entry.trashedPath).toStdString();
}

} // namespace

void logUndoable(const Places& places) {
    Services services(places);
    const auto session =
        StoreSession::open(StorePlaces(places.data), storeServices(services, places));
    if (!session)
        return;
    (*session)->state().addLogs(undoableEntries(places));
    static_cast<void>((*session)->save());
}

Report undoLogged(const Places& places) {
    Services services(places);
    const auto session =
        StoreSession::open(StorePlaces(places.data), storeServices(services, places));
    if (!session)
        return {};
    std::vector<LogEntry>& logs = (*session)->state().logs;
    auto run = (*session)->journal().beginRun();
    const std::vector<UndoOutcome> outcomes =
        Undo(services.fileSystem, services.trash, *run).run(logs);
    Report report;
    for (const UndoOutcome& outcome : outcomes) {
        const std::string thing = placeOf(outcome.entry);
        if (!outcome.restored) {
            report.push_back(failed(thing, places.in, outcome.restored.error()));
            continue;
        }
        report.push_back({thing, true, *outcome.restored, outcome.note.toStdString(), ""});
        std::erase_if(logs, [&](const LogEntry& entry) { return entry.id == outcome.entry.id; });
    }
    run.reset();
    static_cast<void>((*session)->save());
    return report;
}

Report recoverUndoing(const Places& places) {
    Services services(places);
    const auto session =
        StoreSession::open(StorePlaces(places.data), storeServices(services, places));
    if (!session)
        return {};
    Report report;
    for (const LogEntry& entry : undoableEntries(places)) {
        const std::string thing = placeOf(entry);
        const bool isLogged =
            std::ranges::any_of((*session)->state().logs,
                                [&](const LogEntry& logged) { return placeOf(logged) == thing; });
        const std::string original = entry.originalPath->toStdString();
        const std::string numbered =
            places.path("in/back 2" + original.substr(original.rfind('.')));
        const bool isNumbered = services.fileSystem.status(numbered).has_value();
        report.push_back({thing, true,
                          isLogged     ? thing
                          : isNumbered ? numbered
                                       : original,
                          "", ""});
    }
    return report;
}

Report removeLeftovers(const Places& places) {
    LinuxStorage storage;
    for (const std::string& folder : {places.in, places.out, places.path("trash/files")})
        static_cast<void>(storage.removeTemporaries(folder, temporaryTag));
    return {};
}

} // namespace quillon::testing

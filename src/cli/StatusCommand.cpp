#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/LocalTime.h"
#include "cli/StoreFailure.h"
#include "cli/Verbs.h"
#include "store/Attention.h"
#include "store/Schedules.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A watched folder and how it is doing.
struct FolderStatus {
    const WatchedFolder& folder;
    FolderAccess access;
    std::size_t rulesOn;
    bool isSettling;
    std::size_t recentErrors;
    std::optional<Timestamp> nextRun; ///< by the clock; nothing unless an instance runs
};

std::optional<Timestamp> nextRun(const WatchedFolder& folder, const StoreSnapshot& view) {
    const auto interval = tidyInterval(folder);
    if (!interval || !view.isInstance || view.state.isPaused)
        return std::nullopt;
    const auto last = view.lastScheduledRun.constFind(folder.id);
    if (last == view.lastScheduledRun.constEnd())
        return std::nullopt;
    return *last + *interval;
}

std::vector<FolderStatus> folderStates(const StoreSnapshot& view, Timestamp now) {
    std::vector<FolderStatus> states;
    for (const WatchedFolder& folder : view.state.folders)
        states.push_back(
            {.folder = folder,
             .access = view.access.value(folder.id, FolderAccess::ok),
             .rulesOn = std::size_t(std::ranges::count_if(folder.rules, &Rule::isEnabled)),
             .isSettling = view.settling.contains(folder.id),
             .recentErrors = recentErrorCount(view.state.logs, folder.id, now),
             .nextRun = nextRun(folder, view)});
    return states;
}

bool isAttentionNeeded(const StoreSnapshot& view, Timestamp now) {
    return needsAttention(view.state.folders, view.access, view.state.logs, now);
}

void printJson(const StoreSnapshot& view, const std::string& dataFolder, Timestamp now,
               std::ostream& out) {
    JsonStream json;
    json.beginObject().key("running").truth(view.isInstance);
    json.key("paused").truth(view.state.isPaused);
    json.key("needsAttention").truth(isAttentionNeeded(view, now));
    json.key("dataFolder").text(dataFolder);
    if (view.lastSaveError)
        json.key("saveError").text(view.lastSaveError->message);
    json.key("warnings");
    writeTexts(json, view.warnings + view.watchWarnings);
    json.key("folders").beginList();
    for (const FolderStatus& state : folderStates(view, now)) {
        json.beginObject().key("id").id(state.folder.id).key("path").text(state.folder.path);
        json.key("timing").text(rawValue(state.folder.timing()));
        json.key("access").text(rawValue(state.access));
        json.key("rules").integer(std::int64_t(state.folder.rules.size()));
        json.key("rulesOn").integer(std::int64_t(state.rulesOn));
        json.key("settling").truth(state.isSettling);
        json.key("recentErrors").integer(std::int64_t(state.recentErrors));
        if (state.nextRun)
            json.key("nextRun").isoDate(*state.nextRun);
        json.endObject();
    }
    json.endList().endObject();
    finish(json, out);
}

QString rulesText(const FolderStatus& state) {
    const std::size_t off = state.folder.rules.size() - state.rulesOn;
    return counted(state.folder.rules.size(), u"rule"_s) +
           (off > 0 ? u", %1 off"_s.arg(off) : QString());
}

void addNote(LineBuffer& lines, const QString& note, LineBuffer::Style style) {
    lines.add(u"  "_s).add(note, style);
}

void addNotes(LineBuffer& lines, const FolderStatus& state) {
    if (state.access == FolderAccess::missing)
        addNote(lines, u"not found"_s, LineBuffer::Style::bad);
    if (state.access == FolderAccess::denied)
        addNote(lines, u"the system refuses access"_s, LineBuffer::Style::bad);
    if (state.recentErrors > 0)
        addNote(lines, u"%1 in the last day"_s.arg(counted(state.recentErrors, u"failure"_s)),
                LineBuffer::Style::bad);
    if (state.isSettling)
        addNote(lines, u"files still settling"_s, LineBuffer::Style::faint);
    if (state.nextRun)
        addNote(lines, u"next at %1"_s.arg(localTime(*state.nextRun)), LineBuffer::Style::faint);
}

void addFolders(LineBuffer& lines, const std::vector<FolderStatus>& states) {
    ColumnWidth paths;
    ColumnWidth timings;
    ColumnWidth rules;
    for (const FolderStatus& state : states) {
        paths.fit(state.folder.path);
        timings.fit(label(state.folder.timing()));
        rules.fit(rulesText(state));
    }
    for (const FolderStatus& state : states) {
        lines.add(state.folder.path, LineBuffer::Style::strong, paths.columns())
            .add(u"  "_s)
            .add(label(state.folder.timing()), LineBuffer::Style::plain, timings.columns())
            .add(u"  "_s)
            .add(rulesText(state), LineBuffer::Style::plain, rules.columns());
        addNotes(lines, state);
        lines.endLine();
    }
}

void printText(const StoreSnapshot& view, const std::string& dataFolder, Timestamp now,
               const Console& console) {
    LineBuffer lines(console.out, console.colored);
    lines
        .add(view.isInstance
                 ? u"Quillon is running."_s
                 : u"Quillon is not running, so nothing is tidied by itself; start it with: "
                   "quillon agent"_s)
        .endLine();
    if (view.state.isPaused)
        lines.add(u"Paused: nothing runs by itself. Go on with: quillon resume"_s).endLine();
    if (view.state.folders.empty())
        lines.add(u"No folder is watched. Begin with: quillon folder add DIR"_s).endLine();
    addFolders(lines, folderStates(view, now));
    if (view.lastSaveError)
        lines
            .add(u"The last save failed (%1); it is tried again every minute. Make room, or make "
                 "%2 writable"_s.arg(view.lastSaveError->message, pathText(dataFolder)),
                 LineBuffer::Style::bad)
            .endLine();
    for (const QString& warning : view.warnings + view.watchWarnings)
        lines.add(warning, LineBuffer::Style::bad).endLine();
    // A folder's own line says so when it is missing.
    if (std::ranges::any_of(view.state.logs,
                            [&](const LogEntry& entry) { return isRecentError(entry, now); }))
        lines.add(u"Something needs your attention; see: quillon log --errors"_s).endLine();
    lines.add(u"Data: "_s + pathText(dataFolder), LineBuffer::Style::faint).endLine();
}

} // namespace

ExitCode statusCommand(const StatusOptions& options, const Console& console, Services& services) {
    const auto view = services.viewStore();
    if (!view)
        return sayStoreFailure(view.error(), console);
    const Timestamp now = services.platform().clock.now();
    const std::string& dataFolder = services.platform().folders.data;
    if (options.json)
        printJson(*view, dataFolder, now, console.out);
    else
        printText(*view, dataFolder, now, console);
    return ExitCode::done;
}

} // namespace quillon

#include "cli/OneShotRun.h"

#include "cli/JsonOutput.h"
#include "cli/ProgressBar.h"
#include "cli/RunOutput.h"
#include "cli/Totals.h"
#include "model/Uuid.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

OneShotRun plannedRun(const FolderInput& input) {
    return {.folder = input.folder.path,
            .tested = input.ready.files.size(),
            .deferred = input.ready.deferred,
            .skippedNames = input.ready.skippedNames,
            .batchID = QUuid::createUuid(),
            .run = {},
            .unsaved = {}};
}

void carryOut(OneShotRun& run, FolderInput input, const StoreAccess& store, const Console& console,
              Services& services) {
    ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
    AppStore::CleanupReport report = store.runCleanup(
        {.folder = std::move(input.folder),
         .rules = std::move(input.rules),
         .files = std::move(input.ready),
         .batchID = run.batchID,
         .settings = input.settings,
         .progress = [&](std::size_t done, std::size_t total) { bar.update(done, total); }});
    run.run = std::move(report.run);
    run.unsaved = std::move(report.unsaved);
}

void addOneShotRun(const OneShotRun& run, LineBuffer& lines) {
    const std::vector<LogEntry>& entries = run.run.entries;
    addEntries(entries, lines);
    const std::size_t failed = failedEntries(entries);
    Totals totals(u"Tidied "_s + counted(entries.size() - failed, u"file"_s));
    totals.add(failed, u"failed"_s);
    totals.add(std::size_t(run.run.waiting.size()), u"waiting for Dobbin"_s);
    totals.addLeftAlone(run.deferred, run.skippedNames);
    lines.add(totals.sentence()).endLine();
    addReach(entries, lines);
}

void addUndoHint(const OneShotRun& run, LineBuffer& lines) {
    if (std::ranges::any_of(run.run.entries, &LogEntry::undoable))
        lines.add(u"Undo with: quillon undo --batch "_s + uuidText(run.batchID)).endLine();
}

void writeOneShotRun(JsonStream& json, const OneShotRun& run, std::ostream& out) {
    json.key("tested").integer(std::int64_t(run.tested));
    json.key("deferred").integer(std::int64_t(run.deferred)).key("waiting");
    writeTexts(json, run.run.waiting);
    json.key("skippedNames").integer(std::int64_t(run.skippedNames));
    json.key("batchID").id(run.batchID).key("entries").beginList();
    for (const LogEntry& entry : run.run.entries) {
        writeLogEntry(json, entry, DateForm::iso);
        passOn(json, out);
    }
    json.endList();
}

ExitCode sayHowItEnded(const OneShotRun& run, const Console& console) {
    const bool hadProblems = sayProblems(run.run, run.unsaved, console);
    return hadProblems || failedEntries(run.run.entries) > 0 ? ExitCode::someFailed
                                                             : ExitCode::done;
}

} // namespace quillon

#include "cli/RunOutput.h"

#include "cli/JsonOutput.h"
#include "cli/Totals.h"
#include "store/PersistedState.h"
#include "store/Sentences.h"

#include <algorithm>
#include <ranges>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void join(RunReport& whole, const RunReport& later) {
    whole.run.entries.insert(whole.run.entries.end(), later.run.entries.begin(),
                             later.run.entries.end());
    whole.run.waiting = later.run.waiting;
    whole.run.interrupted |= later.run.interrupted;
    whole.run.stopped = later.run.stopped;
    whole.tested = std::max(whole.tested, later.tested);
    whole.deferred = later.deferred;
    whole.skippedNames = later.skippedNames;
    whole.unlisted = later.unlisted;
    whole.unsaved = later.unsaved;
}

std::vector<RunReport> oneAFolder(const std::vector<RunReport>& reports) {
    std::vector<RunReport> joined;
    for (const RunReport& report : reports) {
        const auto found = std::ranges::find(joined, report.folderID, &RunReport::folderID);
        if (found == joined.end())
            joined.push_back(report);
        else
            join(*found, report);
    }
    return joined;
}

void addFolder(const RunReport& report, LineBuffer& lines) {
    const std::vector<LogEntry>& entries = report.run.entries;
    addEntries(entries, lines);
    const std::size_t failed = failedEntries(entries);
    Totals totals(
        u"%1: tidied %2"_s.arg(report.folderName, counted(entries.size() - failed, u"file"_s)));
    totals.add(failed, u"failed"_s);
    totals.add(std::size_t(report.run.waiting.size()), u"waiting for Dobbin"_s);
    totals.addLeftAlone(report.deferred, report.skippedNames);
    lines.add(totals.sentence()).endLine();
    addReach(entries, lines);
}

} // namespace

void addRuns(const std::vector<RunReport>& reports, LineBuffer& lines) {
    bool isFirst = true;
    for (const RunReport& report : oneAFolder(reports)) {
        if (report.unlisted)
            continue;
        if (!isFirst && !report.run.entries.empty())
            lines.endLine();
        isFirst = false;
        addFolder(report, lines);
    }
}

ExitCode sayHowRunsEnded(const std::vector<RunReport>& reports, const Console& console) {
    bool isFlawed = false;
    for (const RunReport& report : oneAFolder(reports)) {
        if (report.unlisted)
            console.say(u"The folder %1 can't be read: %2"_s.arg(report.folderName,
                                                                 report.unlisted->message));
        const bool hadProblems = sayProblems(report.run, report.unsaved, console);
        isFlawed |= report.unlisted || hadProblems || failedEntries(report.run.entries) > 0;
    }
    return isFlawed ? ExitCode::someFailed : ExitCode::done;
}

ExitCode tellRuns(const std::vector<RunReport>& reports, const Console& console) {
    {
        LineBuffer lines(console.out, console.colored);
        addRuns(reports, lines);
    }
    return sayHowRunsEnded(reports, console);
}

ExitCode tellRunsAsJson(const std::vector<RunReport>& reports, const Console& console) {
    JsonStream json;
    writeRuns(json, reports, console.out);
    finish(json, console.out);
    return sayHowRunsEnded(reports, console);
}

void writeRuns(JsonStream& json, const std::vector<RunReport>& reports, std::ostream& out) {
    json.beginList();
    for (const RunReport& report : oneAFolder(reports)) {
        json.beginObject().key("folderID").id(report.folderID);
        json.key("folderName").text(report.folderName);
        json.key("tested").integer(std::int64_t(report.tested));
        json.key("deferred").integer(std::int64_t(report.deferred)).key("waiting");
        writeTexts(json, report.run.waiting);
        json.key("skippedNames").integer(std::int64_t(report.skippedNames));
        if (report.unlisted)
            json.key("error").text(report.unlisted->message);
        json.key("entries").beginList();
        for (const LogEntry& entry : report.run.entries) {
            writeLogEntry(json, entry, DateForm::iso);
            passOn(json, out);
        }
        json.endList().endObject();
    }
    json.endList();
}

void addReach(const std::vector<LogEntry>& entries, LineBuffer& lines) {
    const auto lost = std::ranges::count_if(entries | std::views::drop(logCap),
                                            [](const LogEntry& entry) { return entry.undoable; });
    if (lost > 0)
        lines
            .add(u"The log keeps %1 entries, so undo does not reach %2 of these files."_s.arg(
                QString::number(logCap), QString::number(lost)))
            .endLine();
}

void addEntries(const std::vector<LogEntry>& entries, LineBuffer& lines) {
    ColumnWidth names;
    for (const LogEntry& entry : entries)
        names.fit(entry.fileName);
    for (const LogEntry& entry : entries)
        lines.add(entry.fileName, LineBuffer::Style::plain, names.columns())
            .add(u"  "_s)
            .add(entry.actionSummary,
                 entry.isError ? LineBuffer::Style::bad : LineBuffer::Style::good)
            .endLine();
    if (!entries.empty())
        lines.endLine();
}

std::size_t failedEntries(const std::vector<LogEntry>& entries) {
    return std::size_t(std::ranges::count_if(entries, &LogEntry::isError));
}

bool sayProblems(const RunResult& run, const std::optional<Error>& unsaved,
                 const Console& console) {
    if (run.stopped)
        console.say(u"The run stopped early, because the journal can't be written: "_s +
                    run.stopped->message);
    if (run.interrupted)
        console.say(u"Stopped on request; the files not named are as they were"_s);
    if (unsaved)
        console.say(u"The activity log can't be saved (%1); what was done is in the journal, and "
                    "enters the log later"_s.arg(unsaved->message));
    return run.stopped || run.interrupted || unsaved;
}

} // namespace quillon

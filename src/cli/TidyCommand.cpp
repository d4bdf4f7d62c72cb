#include "cli/Inputs.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/ProgressBar.h"
#include "cli/StoreFailure.h"
#include "cli/Totals.h"
#include "cli/Verbs.h"
#include "model/Uuid.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void printJson(const FolderInput& input, const TidyReport& report, std::ostream& out) {
    JsonStream json;
    json.beginObject().key("folder").text(input.request.path);
    json.key("tested").integer(std::int64_t(input.ready.files.size()));
    json.key("deferred").integer(std::int64_t(input.ready.deferred)).key("waiting");
    writeTexts(json, report.run.waiting);
    json.key("skippedNames").integer(std::int64_t(input.ready.skippedNames));
    json.key("batchID").id(report.batchID).key("entries").beginList();
    for (const LogEntry& entry : report.run.entries) {
        writeLogEntry(json, entry, DateForm::iso);
        passOn(json, out);
    }
    json.endList().endObject();
    finish(json, out);
}

void printEntries(const std::vector<LogEntry>& entries, LineBuffer& lines) {
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

void printText(const FolderInput& input, const TidyReport& report, std::size_t failed,
               const Console& console) {
    const std::vector<LogEntry>& entries = report.run.entries;
    LineBuffer lines(console.out, console.colored);
    printEntries(entries, lines);

    Totals totals(u"Tidied "_s + counted(entries.size() - failed, u"file"_s));
    totals.add(failed, u"failed"_s);
    totals.add(std::size_t(report.run.waiting.size()), u"waiting for Dobbin"_s);
    totals.addLeftAlone(input.ready);
    lines.add(totals.sentence()).endLine();
    if (report.forgotten > 0)
        lines
            .add(u"The log keeps %1 entries, so undo does not reach %2 of these files."_s.arg(
                QString::number(logCap), QString::number(report.forgotten)))
            .endLine();
    if (std::ranges::any_of(entries, &LogEntry::undoable))
        lines.add(u"Undo with: quillon undo --batch "_s + uuidText(report.batchID)).endLine();
}

/// Says what went wrong with the run as a whole; true when something did.
bool sayProblems(const TidyReport& report, const Console& console) {
    for (const QString& warning : report.warnings)
        console.say(warning);
    if (report.run.stopped)
        console.say(u"The run stopped early, because the journal can't be written: "_s +
                    report.run.stopped->message);
    if (report.run.interrupted)
        console.say(u"Stopped on request; the files not named are as they were"_s);
    if (report.unsaved)
        console.say(
            u"The activity log can't be saved (%1); what was done is in the journal, and the "
            "next command takes it in"_s.arg(report.unsaved->message));
    return report.run.stopped || report.run.interrupted || report.unsaved;
}

} // namespace

ExitCode tidyCommand(const FolderOptions& options, const Console& console, Services& services) {
    const auto input = readInput(options, console, services);
    if (!input) {
        console.say(input.error());
        return ExitCode::unreadable;
    }
    Expected<TidyReport> report;
    if (!input->rules.empty()) {
        ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
        report = tidyOnce(services, input->request, input->ready, input->rules,
                          [&](std::size_t done, std::size_t total) { bar.update(done, total); });
    }
    if (!report)
        return sayStoreFailure(report.error(), console);

    const auto failed = std::size_t(std::ranges::count_if(report->run.entries, &LogEntry::isError));
    if (options.json)
        printJson(*input, *report, console.out);
    else
        printText(*input, *report, failed, console);
    const bool hadProblems = sayProblems(*report, console);
    return failed > 0 || hadProblems ? ExitCode::someFailed : ExitCode::done;
}

} // namespace quillon

#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/OpenStore.h"
#include "cli/ProgressBar.h"
#include "cli/Refusal.h"
#include "cli/ShortID.h"
#include "cli/TimeSpan.h"
#include "cli/Totals.h"
#include "cli/Verbs.h"
#include "model/Uuid.h"
#include "store/Sentences.h"
#include "store/Undo.h"

#include <QSet>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The one id that is meant by a text.
Chosen<QUuid> meantID(const std::string& given, const QSet<QUuid>& ids, const QString& noun) {
    const QString text = QString::fromStdString(given);
    const auto isIDCharacter = [](QChar c) { return u"0123456789abcdefABCDEF-"_s.contains(c); };
    if (text.size() < shortestIDPrefix || !std::ranges::all_of(text, isIDCharacter))
        return refusal(ExitCode::usage, u"“%1” is not an id, nor the first %2 characters of one or "
                                        "more"_s.arg(text, QString::number(shortestIDPrefix)));
    std::vector<QUuid> found;
    for (const QUuid& id : ids)
        if (uuidText(id).startsWith(text, Qt::CaseInsensitive))
            found.push_back(id);
    if (found.empty())
        return refusal(ExitCode::someFailed, u"The activity log has no %1 %2"_s.arg(noun, text));
    if (found.size() > 1)
        return refusal(ExitCode::usage, u"%1 ids begin with %2; give more of it"_s.arg(
                                            QString::number(found.size()), text));
    return found.front();
}

Chosen<std::vector<QUuid>> chosenEntry(const std::string& given,
                                       const std::vector<LogEntry>& logs) {
    QSet<QUuid> ids;
    for (const LogEntry& entry : logs)
        ids.insert(entry.id);
    const auto id = meantID(given, ids, u"entry"_s);
    if (!id)
        return std::unexpected(id.error());
    return std::vector{*id};
}

Chosen<std::vector<QUuid>> chosenBatch(const std::string& given,
                                       const std::vector<LogEntry>& logs) {
    QSet<QUuid> ids;
    for (const LogEntry& entry : logs)
        if (entry.batchID)
            ids.insert(*entry.batchID);
    const auto id = meantID(given, ids, u"batch"_s);
    if (!id)
        return std::unexpected(id.error());
    std::vector<QUuid> chosen;
    for (const LogEntry& entry : undoableOfBatch(logs, *id))
        chosen.push_back(entry.id);
    if (chosen.empty())
        return refusal(ExitCode::someFailed, u"Nothing of this batch can be undone"_s);
    return chosen;
}

Chosen<std::vector<QUuid>> chosenSpan(const UndoOptions& options, const std::vector<LogEntry>& logs,
                                      Timestamp now) {
    const auto span = timeSpan(options.since, options.before, now);
    if (!span)
        return std::unexpected(span.error());
    std::vector<QUuid> chosen;
    for (const LogEntry& entry : logs)
        if (span->contains(entry.date) && canBeUndone(entry))
            chosen.push_back(entry.id);
    if (chosen.empty())
        return refusal(ExitCode::someFailed, u"Nothing that was done then can be undone"_s);
    return chosen;
}

Chosen<std::vector<QUuid>> chosenEntries(const UndoOptions& options,
                                         const std::vector<LogEntry>& logs,
                                         const Platform& platform) {
    if (!options.since.empty() || !options.before.empty())
        return chosenSpan(options, logs, platform.clock.now());
    if (!options.last)
        return options.batch.empty() ? chosenEntry(options.entry, logs)
                                     : chosenBatch(options.batch, logs);
    const auto entry = newestUndoable(logs, platform.fileSystem);
    if (!entry)
        return refusal(ExitCode::someFailed, u"There is nothing to undo"_s);
    return std::vector{entry->id};
}

void printJson(const std::vector<UndoOutcome>& outcomes, std::ostream& out) {
    const auto writeFile = [](JsonStream& json, const UndoOutcome& outcome) {
        json.beginObject().key("id").id(outcome.entry.id);
        json.key("fileName").text(outcome.entry.fileName);
    };
    JsonStream json;
    json.beginObject().key("undone").beginList();
    for (const UndoOutcome& outcome : outcomes)
        if (outcome.restored) {
            writeFile(json, outcome);
            json.key("path").text(*outcome.restored);
            if (!outcome.note.isEmpty())
                json.key("note").text(outcome.note);
            json.endObject();
        }
    json.endList().key("failed").beginList();
    for (const UndoOutcome& outcome : outcomes)
        if (!outcome.restored) {
            writeFile(json, outcome);
            json.key("error").text(outcome.restored.error().message).endObject();
        }
    json.endList().endObject();
    finish(json, out);
}

void printText(const std::vector<UndoOutcome>& outcomes, std::size_t failed,
               const Console& console) {
    LineBuffer lines(console.out, console.colored);
    for (const UndoOutcome& outcome : outcomes) {
        if (!outcome.restored)
            continue;
        lines.add(u"%1 is back: %2"_s.arg(outcome.entry.fileName, pathText(*outcome.restored)));
        if (!outcome.note.isEmpty())
            lines.add(u" (%1)"_s.arg(outcome.note), LineBuffer::Style::faint);
        lines.endLine();
    }
    if (outcomes.size() == 1)
        return;
    Totals totals(u"Put back "_s + counted(outcomes.size() - failed, u"file"_s));
    totals.add(failed, u"failed"_s);
    lines.add(totals.sentence()).endLine();
}

/// Says which files can't be put back, and why; returns their number.
std::size_t sayFailures(const std::vector<UndoOutcome>& outcomes, const Console& console) {
    std::size_t failed = 0;
    for (const UndoOutcome& outcome : outcomes)
        if (!outcome.restored) {
            ++failed;
            console.say(u"%1 can't be put back: %2"_s.arg(outcome.entry.fileName,
                                                          outcome.restored.error().message));
        }
    return failed;
}

} // namespace

ExitCode undoCommand(const UndoOptions& options, const Console& console, Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();
    const auto logs = store->call([](AppStore& appStore) { return appStore.recentLogs(); });
    const auto chosen = chosenEntries(options, logs, services.platform());
    if (!chosen)
        return sayRefusal(chosen.error(), console);

    AppStore::UndoReport report;
    {
        ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
        report = store->undo(
            *chosen, [&](std::size_t done, std::size_t total) { bar.update(done, total); },
            console.mayContinue);
    }
    const std::vector<UndoOutcome>& outcomes = report.outcomes;
    const std::size_t failed = sayFailures(outcomes, console);
    if (options.json)
        printJson(outcomes, console.out);
    else
        printText(outcomes, failed, console);
    const bool wasStopped = outcomes.size() < chosen->size();
    if (wasStopped)
        console.say(u"Stopped on request; %1 can still be undone"_s.arg(
            counted(chosen->size() - outcomes.size(), u"file"_s)));
    if (report.unsaved)
        console.say(u"The activity log can't be saved (%1), so it may still list what was "
                    "undone"_s.arg(report.unsaved->message));
    return failed > 0 || wasStopped || report.unsaved ? ExitCode::someFailed : ExitCode::done;
}

} // namespace quillon

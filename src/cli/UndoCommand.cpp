#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/StoreFailure.h"
#include "cli/Totals.h"
#include "cli/Verbs.h"
#include "model/Uuid.h"
#include "store/Sentences.h"
#include "store/Undo.h"

#include <QSet>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shortestPrefix = 4;

/// Why nothing is undone.
struct Refusal {
    ExitCode code;
    QString sentence;
};

/// The one id that is meant by a text.
std::expected<QUuid, Refusal> meantID(const std::string& given, const QSet<QUuid>& ids,
                                      const QString& noun) {
    const QString text = QString::fromStdString(given);
    const auto isIDCharacter = [](QChar c) { return u"0123456789abcdefABCDEF-"_s.contains(c); };
    if (text.size() < shortestPrefix || !std::ranges::all_of(text, isIDCharacter))
        return std::unexpected(
            Refusal{ExitCode::usage,
                    u"“%1” is not an id, nor the first %2 "
                    "characters of one or more"_s.arg(text, QString::number(shortestPrefix))});
    std::vector<QUuid> found;
    for (const QUuid& id : ids)
        if (uuidText(id).startsWith(text, Qt::CaseInsensitive))
            found.push_back(id);
    if (found.empty())
        return std::unexpected(
            Refusal{ExitCode::someFailed, u"The activity log has no %1 %2"_s.arg(noun, text)});
    if (found.size() > 1)
        return std::unexpected(Refusal{
            ExitCode::usage,
            u"%1 ids begin with %2; give more of it"_s.arg(QString::number(found.size()), text)});
    return found.front();
}

using Outcomes = std::expected<std::vector<UndoOutcome>, Refusal>;

Outcomes undoEntry(const std::string& given, const std::vector<LogEntry>& logs, Undo& undo) {
    QSet<QUuid> ids;
    for (const LogEntry& entry : logs)
        ids.insert(entry.id);
    const auto id = meantID(given, ids, u"entry"_s);
    if (!id)
        return std::unexpected(id.error());
    const LogEntry entry = *std::ranges::find(logs, *id, &LogEntry::id);
    return std::vector{undo.entry(entry)};
}

Outcomes undoBatch(const std::string& given, const std::vector<LogEntry>& logs, Undo& undo) {
    QSet<QUuid> ids;
    for (const LogEntry& entry : logs)
        if (entry.batchID)
            ids.insert(*entry.batchID);
    const auto id = meantID(given, ids, u"batch"_s);
    if (!id)
        return std::unexpected(id.error());
    std::vector<UndoOutcome> outcomes = undo.batch(*id);
    if (outcomes.empty())
        return std::unexpected(
            Refusal{ExitCode::someFailed, u"Nothing of this batch can be undone"_s});
    return outcomes;
}

Outcomes undoLast(Undo& undo) {
    const auto entry = undo.newest();
    if (!entry)
        return std::unexpected(Refusal{ExitCode::someFailed, u"There is nothing to undo"_s});
    return std::vector{undo.entry(*entry)};
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

} // namespace

ExitCode undoCommand(const UndoOptions& options, const Console& console, Services& services) {
    auto store = services.openStore();
    if (!store)
        return sayStoreFailure(store.error(), console);
    for (const QString& warning : (*store)->warnings())
        console.say(warning);

    PersistedState& state = (*store)->state();
    Undo undo(services.platform().fileSystem, services.platform().trash, state);
    const Outcomes outcomes = options.last            ? undoLast(undo)
                              : options.batch.empty() ? undoEntry(options.entry, state.logs, undo)
                                                      : undoBatch(options.batch, state.logs, undo);
    if (!outcomes) {
        console.say(outcomes.error().sentence);
        return outcomes.error().code;
    }

    const auto saved = (*store)->save();
    std::size_t failed = 0;
    for (const UndoOutcome& outcome : *outcomes)
        if (!outcome.restored) {
            ++failed;
            console.say(u"%1 can't be put back: %2"_s.arg(outcome.entry.fileName,
                                                          outcome.restored.error().message));
        }
    if (options.json)
        printJson(*outcomes, console.out);
    else
        printText(*outcomes, failed, console);
    if (!saved)
        console.say(u"The activity log can't be saved, so it still lists what was undone: "_s +
                    saved.error().message);
    return failed > 0 || !saved ? ExitCode::someFailed : ExitCode::done;
}

} // namespace quillon

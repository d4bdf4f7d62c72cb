#include "assistant/DobbinChat.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/LogLines.h"
#include "cli/OfferedChange.h"
#include "cli/OpenStore.h"
#include "cli/ThinkingHint.h"
#include "cli/Verbs.h"
#include "service/LoopTask.h"
#include "store/RuleEdits.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Nothing when the command was called off. Then the question stays, and a running agent goes on to
/// answer it.
std::optional<ChatTurn> answerTo(const QString& question, const Console& console,
                                 Services& services) {
    const auto task = std::make_shared<LoopTask<ChatTurn>>();
    services.onLoop([&] {
        services.chat().ask(question, [task](const ChatTurn& answer) {
            task->result = answer;
            task->ended.raise();
        });
    });
    ThinkingHint hint(console, services.platform().clock);
    const bool came = task->ended.wait([&] { return hint.mayContinue(); });
    return came ? std::move(task->result) : std::nullopt;
}

using Folders = std::vector<WatchedFolder>;

QString commandFor(const ChatTurn& answer, std::size_t number) {
    return u"quillon ask --do %1 --answer %2"_s.arg(QString::number(number), shortID(answer));
}

std::vector<Rule> rulesNow(const DobbinAction& action, const Folders& folders) {
    const auto folder = std::ranges::find(folders, action.folderID, &WatchedFolder::id);
    return folder == folders.end() ? std::vector<Rule>() : folder->rules;
}

/// What the label leaves out; empty where it says it all.
QString detailOf(const DobbinAction& action, const Folders& folders) {
    if (action.ruleID)
        return u"in "_s + action.folderName;
    if (!action.ruleOrder)
        return {};
    std::vector<Rule> rules = rulesNow(action, folders);
    reorderRules(rules, *action.ruleOrder);
    QStringList names;
    for (const Rule& rule : rules)
        names.append(u'“' + rule.name + u'”');
    return names.join(u", "_s);
}

void writeAction(JsonStream& json, const ChatTurn& answer, std::size_t number,
                 const Folders& folders) {
    const DobbinAction& action = answer.actions[number - 1];
    json.beginObject().key("number").integer(std::int64_t(number));
    json.key("kind").text(rawValue(action.kind)).key("label").text(action.label());
    json.key("folderID").id(action.folderID).key("folderName").text(action.folderName);
    if (action.ruleID)
        json.key("ruleID").id(*action.ruleID);
    if (action.ruleName)
        json.key("ruleName").text(*action.ruleName);
    if (action.ruleOrder) {
        json.key("ruleOrder").beginList();
        for (const QUuid& id : *action.ruleOrder)
            json.id(id);
        json.endList().key("ruleNames").beginList();
        const std::vector<Rule> rules = rulesNow(action, folders);
        for (const QUuid& id : *action.ruleOrder) {
            const Rule* const rule = findRule(rules, id);
            json.text(rule ? rule->name : QString());
        }
        json.endList();
    }
    if (action.description)
        json.key("description").text(*action.description);
    json.key("command").text(commandFor(answer, number)).endObject();
}

void printJson(const QString& question, const ChatTurn& answer, const Folders& folders,
               std::ostream& out) {
    JsonStream json;
    json.beginObject().key("question").text(question).key("answer").text(answer.text);
    json.key("isError").truth(answer.isError).key("date").isoDate(answer.date);
    json.key("entries").beginList();
    for (const LogEntry& entry : answer.entries)
        writeLogEntry(json, entry, DateForm::iso);
    json.endList().key("actions").beginList();
    for (std::size_t number = 1; number <= answer.actions.size(); ++number)
        writeAction(json, answer, number, folders);
    json.endList().endObject();
    finish(json, out);
}

void printText(const ChatTurn& answer, const Folders& folders, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    for (const QString& line : answer.text.split(u'\n'))
        lines.add(line).endLine();
    if (!answer.entries.empty()) {
        lines.endLine();
        addLogLines(answer.entries, lines, true);
    }
    const auto undoable = std::ranges::find_if(answer.entries, &LogEntry::canUndo);
    if (undoable != answer.entries.end())
        lines.add(u"Put back with: quillon undo "_s + shortID(*undoable), LineBuffer::Style::faint)
            .endLine();
    std::size_t number = 0;
    for (const DobbinAction& action : answer.actions) {
        lines.endLine();
        lines.add(u"%1. "_s.arg(++number)).add(action.label(), LineBuffer::Style::strong);
        if (action.description)
            lines.add(u": "_s + *action.description);
        lines.endLine();
        if (const QString detail = detailOf(action, folders); !detail.isEmpty())
            lines.add(u"   "_s + detail, LineBuffer::Style::faint).endLine();
        lines.add(u"   "_s + commandFor(answer, number), LineBuffer::Style::faint).endLine();
    }
}

ExitCode askDobbin(const AskOptions& options, const StoreAccess& store, const Console& console,
                   Services& services) {
    const QString question = QString::fromStdString(options.question);
    const auto answer = answerTo(question, console, services);
    if (!answer) {
        console.say(u"Stopped before there was an answer"_s);
        return ExitCode::someFailed;
    }
    if (answer->isError)
        console.say(answer->text);
    const auto folders = store.call([](AppStore& appStore) { return appStore.folders(); });
    if (options.json)
        printJson(question, *answer, folders, console.out);
    else if (!answer->isError)
        printText(*answer, folders, console);
    // A connection that was lost meanwhile is noticed by writing.
    if (console.out.flush() && (!console.mayContinue || console.mayContinue()))
        store.call([&](AppStore&) { services.chat().noteShown(answer->id); });
    return answer->isError ? ExitCode::someFailed : ExitCode::done;
}

} // namespace

ExitCode askCommand(const AskOptions& options, const Console& console, Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();
    if (const auto warning = store->call([&](AppStore&) { return services.chat().takeWarning(); }))
        console.say(*warning);
    const ExitCode code = options.number ? carryOutOffer(options, *store, console, services)
                                         : askDobbin(options, *store, console, services);
    const auto unsaved = store->call([&](AppStore&) { return services.chat().lastSaveError(); });
    if (!unsaved)
        return code;
    console.say(u"The conversation can't be saved (%1); the next question tries again"_s.arg(
        unsaved->message));
    return code == ExitCode::done ? ExitCode::someFailed : code;
}

} // namespace quillon

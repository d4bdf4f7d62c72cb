#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/StoreFailure.h"
#include "cli/Verbs.h"
#include "model/Uuid.h"

#include <QDateTime>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shortID = 8;

QString localTime(Timestamp date) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date).time_since_epoch();
    return QDateTime::fromSecsSinceEpoch(seconds.count()).toString(u"yyyy-MM-dd HH:mm");
}

std::vector<LogEntry> chosen(std::vector<LogEntry> logs, const LogOptions& options) {
    if (options.errorsOnly)
        std::erase_if(logs, [](const LogEntry& entry) { return !entry.isError; });
    if (options.limit && logs.size() > *options.limit)
        logs.resize(*options.limit);
    return logs;
}

void printJson(const std::vector<LogEntry>& logs, std::ostream& out) {
    JsonStream json;
    json.beginList();
    for (const LogEntry& entry : logs)
        writeLogEntry(json, entry, DateForm::iso);
    json.endList();
    finish(json, out);
}

void printText(const std::vector<LogEntry>& logs, const Console& console) {
    ColumnWidth names;
    for (const LogEntry& entry : logs)
        names.fit(entry.fileName);
    LineBuffer lines(console.out, console.colored);
    for (const LogEntry& entry : logs)
        lines.add(uuidText(entry.id).left(shortID), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(localTime(entry.date), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(entry.fileName, LineBuffer::Style::plain, names.columns())
            .add(u"  "_s)
            .add(entry.actionSummary,
                 entry.isError ? LineBuffer::Style::bad : LineBuffer::Style::plain)
            .add(u"  (%1)"_s.arg(entry.ruleName), LineBuffer::Style::faint)
            .endLine();
}

} // namespace

ExitCode logCommand(const LogOptions& options, const Console& console, Services& services) {
    const auto view = services.viewStore();
    if (!view)
        return sayStoreFailure(view.error(), console);
    for (const QString& warning : view->warnings)
        console.say(warning);
    const std::vector<LogEntry> logs = chosen(view->state.logs, options);
    if (options.json)
        printJson(logs, console.out);
    else if (logs.empty())
        console.out << (options.errorsOnly ? "Nothing has gone wrong.\n"
                                           : "Nothing has been done yet.\n");
    else
        printText(logs, console);
    return ExitCode::done;
}

} // namespace quillon

#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/LogLines.h"
#include "cli/NamedFolder.h"
#include "cli/OpenStore.h"
#include "cli/TimeSpan.h"
#include "cli/Verbs.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the file of an entry was in the folder, or below it, before.
bool wasWithin(const LogEntry& entry, const std::string& folder) {
    return entry.originalPath &&
           entry.originalPath->toStdString().starts_with(folder == "/" ? folder : folder + '/');
}

/// Of a watched folder what it has done, of any other what was done there.
Chosen<std::vector<LogEntry>> ofFolder(std::vector<LogEntry> logs, const std::string& given,
                                       const std::vector<WatchedFolder>& folders,
                                       const Console& console, Services& services) {
    const auto watched = watchedFolderAt(given, folders, console, services);
    const std::string path =
        watched ? watched->path.toStdString()
                : services.platform().fileSystem.resolved(absolutePath(given, console));
    std::erase_if(logs, [&](const LogEntry& entry) {
        return !(watched && entry.folderID == watched->id) && !wasWithin(entry, path);
    });
    if (logs.empty() && !watched)
        return std::unexpected(watched.error());
    return logs;
}

std::vector<LogEntry> chosen(std::vector<LogEntry> logs, const LogOptions& options,
                             const TimeSpan& span) {
    std::erase_if(logs, [&](const LogEntry& entry) {
        return (options.errorsOnly && !entry.isError) || !span.contains(entry.date);
    });
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

} // namespace

ExitCode logCommand(const LogOptions& options, const Console& console, Services& services) {
    const auto span = timeSpan(options.since, options.before, services.platform().clock.now());
    if (!span)
        return sayRefusal(span.error(), console);
    const auto view = viewStoreFor(console, services);
    if (!view)
        return view.error();
    Chosen<std::vector<LogEntry>> found = view->state.logs;
    if (!options.folder.empty())
        found = ofFolder(std::move(*found), options.folder, view->state.folders, console, services);
    if (!found)
        return sayRefusal(found.error(), console);
    const std::vector<LogEntry> logs = chosen(std::move(*found), options, *span);
    if (options.json)
        printJson(logs, console.out);
    else if (logs.empty())
        console.out << (options.errorsOnly            ? "Nothing has gone wrong.\n"
                        : span->since || span->before ? "Nothing was done then.\n"
                                                      : "Nothing has been done yet.\n");
    else {
        LineBuffer lines(console.out, console.colored);
        addLogLines(logs, lines);
    }
    return ExitCode::done;
}

} // namespace quillon

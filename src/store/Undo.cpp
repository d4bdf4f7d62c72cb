#include "store/Undo.h"

#include "platform/FileNames.h"
#include "store/Sentences.h"

#include <QSet>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// Clocks and file systems round differently; a change is only claimed when it is plain.
constexpr std::chrono::seconds roundingSlack{2};

QString notFound(const std::string& path, bool inTrash) {
    return inTrash ? u"it is no longer in the Trash at %1"_s.arg(pathText(path))
                   : u"nothing is at %1 any more"_s.arg(pathText(path));
}

/// Where the file of an entry that can be undone should be now.
std::string placeOf(const LogEntry& entry) {
    return (entry.currentPath ? *entry.currentPath : *entry.trashedPath).toStdString();
}

/// The file that the entry tells of was written, or came into being, no later than the entry.
bool isLaterThan(const LogEntry& entry, const FileStatus& status) {
    const Timestamp latest = entry.date + roundingSlack;
    return status.modified > latest || status.created.value_or(latest) > latest;
}

void addNote(QString& note, const QString& clause) {
    note += note.isEmpty() ? clause : u"; "_s + clause;
}

} // namespace

bool canBeUndone(const LogEntry& entry) {
    return entry.canUndo() && (entry.currentPath || entry.trashedPath);
}

std::optional<LogEntry> newestUndoable(const std::vector<LogEntry>& logs,
                                       const FileSystem& fileSystem) {
    const auto stands = [&](const LogEntry& entry) {
        return canBeUndone(entry) && fileSystem.status(placeOf(entry)).has_value();
    };
    auto found = std::ranges::find_if(logs, stands);
    if (found == logs.end())
        found = std::ranges::find_if(logs, canBeUndone);
    return found == logs.end() ? std::nullopt : std::optional(*found);
}

std::vector<LogEntry> undoableOfBatch(const std::vector<LogEntry>& logs, const QUuid& batchID) {
    std::vector<LogEntry> found;
    std::ranges::copy_if(logs, std::back_inserter(found), [&](const LogEntry& entry) {
        return entry.batchID == batchID && canBeUndone(entry);
    });
    return found;
}

std::vector<UndoOutcome> Undo::run(std::vector<LogEntry> entries, const Progress& progress,
                                   const std::function<bool()>& mayContinue) {
    const std::size_t total = entries.size();
    std::vector<Task> left;
    for (LogEntry& entry : entries)
        left.push_back({.entry = std::move(entry)});
    const Expected<void> journalled = intend(left);

    std::vector<UndoOutcome> outcomes;
    while (!left.empty()) {
        QSet<QString> taken;
        for (const Task& task : left)
            if (task.intended)
                taken.insert(task.entry.currentPath.value_or(QString()));
        const auto isFree = [&](const Task& task) {
            return task.entry.currentPath == task.entry.originalPath ||
                   !taken.contains(task.entry.originalPath.value_or(QString()));
        };
        auto waiting = std::stable_partition(left.begin(), left.end(), isFree);
        if (waiting == left.begin()) // each waits for another
            ++waiting;
        for (auto next = left.begin(); next != waiting; ++next) {
            if (mayContinue && !mayContinue())
                return outcomes;
            if (journalled)
                outcomes.push_back(takeBack(*next));
            else
                outcomes.push_back({.entry = next->entry,
                                    .restored = std::unexpected(journalled.error()),
                                    .note = {}});
            if (progress)
                progress(outcomes.size(), total);
        }
        left.erase(left.begin(), waiting);
    }
    return outcomes;
}

Expected<void> Undo::intend(std::span<Task> tasks) {
    std::vector<Intent> intents;
    for (Task& task : tasks) {
        if (!canBeUndone(task.entry))
            continue;
        const Expected<FileStatus> status = fileSystem_.status(placeOf(task.entry));
        if (!status)
            continue;
        task.intended = *status;
        const std::string original = task.entry.originalPath->toStdString();
        intents.push_back({.entry = task.entry,
                           .status = *status,
                           .targetFolders = {std::string(parentPath(original))}});
    }
    if (intents.empty())
        return {};
    if (auto written = journal_.intendUndo(intents); !written)
        return failedTo(u"the journal can't be written"_s, written.error());
    return {};
}

UndoOutcome Undo::takeBack(Task& task) {
    UndoOutcome outcome{.entry = task.entry, .restored = std::string(), .note = {}};
    Expected<Placement> placement = putBack(task, outcome.note);
    if (!placement) {
        outcome.restored = std::unexpected(placement.error());
        return outcome;
    }
    if (!placement->losses.isEmpty())
        addNote(outcome.note, u"lost on the way: "_s + placement->losses.join(u", "));
    LogEntry done = task.entry;
    done.currentPath = pathText(placement->path);
    journal_.record(done);
    outcome.restored = std::move(placement->path);
    return outcome;
}

Expected<Placement> Undo::putBack(Task& task, QString& note) {
    const LogEntry& entry = task.entry;
    if (!canBeUndone(entry))
        return failure(ErrorKind::invalid, u"this entry is nothing that can be undone"_s);
    const bool inTrash = !entry.currentPath.has_value();
    const std::string current = placeOf(entry);
    const std::string original = entry.originalPath->toStdString();

    const Expected<FileStatus> status = fileSystem_.status(current);
    if (!status)
        return failure(status.error().kind, status.error().kind == ErrorKind::notFound
                                                ? notFound(current, inTrash)
                                                : status.error().message);
    // Another entry of these has put it there, or somebody else just now.
    if (!task.intended || !task.intended->isSameFileAs(*status))
        if (auto intended = intend({&task, 1}); !intended)
            return std::unexpected(intended.error());
    if (isLaterThan(entry, *status))
        addNote(note, u"it has been changed or replaced since"_s);

    // Where the folder can't be made again, the move says why.
    std::ignore = fileSystem_.makeFolders(std::string(parentPath(original)));
    return inTrash ? trash_.restore(current, original) : fileSystem_.move(current, original);
}

} // namespace quillon

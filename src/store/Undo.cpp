#include "store/Undo.h"

#include "platform/FileNames.h"
#include "store/Sentences.h"

#include <QSet>

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

} // namespace

bool canBeUndone(const LogEntry& entry) {
    return entry.canUndo() && (entry.currentPath || entry.trashedPath);
}

std::optional<LogEntry> Undo::newest() const {
    const auto stands = [this](const LogEntry& entry) {
        return canBeUndone(entry) && fileSystem_.status(placeOf(entry)).has_value();
    };
    auto found = std::ranges::find_if(state_.logs, stands);
    if (found == state_.logs.end())
        found = std::ranges::find_if(state_.logs, canBeUndone);
    return found == state_.logs.end() ? std::nullopt : std::optional(*found);
}

UndoOutcome Undo::entry(const LogEntry& entry) {
    UndoOutcome outcome{.entry = entry, .restored = std::string(), .note = {}};
    outcome.restored = putBack(entry, outcome.note);
    if (outcome.restored)
        std::erase_if(state_.logs, [&](const LogEntry& logged) { return logged.id == entry.id; });
    return outcome;
}

Expected<std::string> Undo::putBack(const LogEntry& entry, QString& note) {
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
    if (status->modified > entry.date + roundingSlack)
        note = u"it has been changed or replaced since"_s;

    // Where the folder can't be made again, the move says why.
    std::ignore = fileSystem_.makeFolders(std::string(parentPath(original)));
    if (inTrash)
        return trash_.restore(current, original);
    auto placement = fileSystem_.move(current, original);
    if (!placement)
        return std::unexpected(placement.error());
    if (!placement->losses.isEmpty())
        note += (note.isEmpty() ? u""_s : u"; "_s) + u"lost on the way: "_s +
                placement->losses.join(u", ");
    return std::move(placement->path);
}

std::vector<UndoOutcome> Undo::batch(const QUuid& batchID) {
    std::vector<LogEntry> left;
    for (const LogEntry& entry : state_.logs)
        if (entry.batchID == batchID && canBeUndone(entry))
            left.push_back(entry);

    std::vector<UndoOutcome> outcomes;
    while (!left.empty()) {
        QSet<QString> taken;
        for (const LogEntry& entry : left)
            taken.insert(entry.currentPath.value_or(QString()));
        const auto isFree = [&](const LogEntry& entry) {
            return entry.currentPath == entry.originalPath || !taken.contains(*entry.originalPath);
        };
        auto waiting = std::stable_partition(left.begin(), left.end(), isFree);
        if (waiting == left.begin()) // each waits for another
            ++waiting;
        for (auto next = left.begin(); next != waiting; ++next)
            outcomes.push_back(entry(*next));
        left.erase(left.begin(), waiting);
    }
    return outcomes;
}

} // namespace quillon

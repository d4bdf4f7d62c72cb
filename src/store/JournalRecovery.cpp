#include "store/JournalRecovery.h"

#include "platform/FileNames.h"

#include <QSet>

#include <map>
#include <unordered_map>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void addPhrase(LogEntry& entry, const QString& phrase) {
    if (!entry.actionSummary.isEmpty())
        entry.actionSummary += u", "_s;
    entry.actionSummary += phrase;
}

/// Whether what stands there now is the file that the run was about to handle. A move to another
/// device makes a new file; its size and date, which a copy keeps to the nanosecond, tell it.
bool isTheFile(const FileStatus& found, const FileStatus& intended) {
    if (found.device != intended.device)
        return found.size == intended.size && found.modified == intended.modified;
    if (found.inode != intended.inode)
        return false;
    // The number of a file that is gone is given to new ones.
    if (found.created && intended.created)
        return *found.created == *intended.created;
    return found.modified == intended.modified;
}

class Recovery {
public:
    Recovery(const FileSystem& fileSystem, const TrashPlaces& trashPlaces)
        : fileSystem_(fileSystem), trashPlaces_(trashPlaces) {}

    std::optional<LogEntry> entryOf(const JournalledFile& file) {
        const std::string place = lastKnownPlace(file.intent.entry);
        const Expected<FileStatus> standing = fileSystem_.status(place);
        if (standing && isTheFile(*standing, file.intent.status))
            return soFar(file);
        if (const auto found = search(file.intent.targetFolders, file.intent))
            return movedTo(file, *found);
        const std::string folder(parentPath(file.intent.entry.originalPath->toStdString()));
        if (const auto found = search(trashPlaces_(folder), file.intent))
            return trashedAt(file, *found);
        return standing ? soFar(file) : std::optional(lost(file));
    }

private:
    static std::string lastKnownPlace(const LogEntry& entry) {
        const QString original = entry.originalPath.value_or(QString());
        if (!entry.undoable) // where it is named, currentPath is a copy
            return (entry.currentPath ? original : entry.trashedPath.value_or(original))
                .toStdString();
        return entry.currentPath.value_or(entry.trashedPath.value_or(original)).toStdString();
    }

    static std::optional<LogEntry> soFar(const JournalledFile& file) {
        return file.hasOutcome ? std::optional(file.intent.entry) : std::nullopt;
    }

    std::optional<std::string> search(const std::vector<std::string>& folders,
                                      const Intent& intent) {
        const QString original = *intent.entry.originalPath;
        const std::string path = original.toStdString();
        const std::string_view stem = splitName(lastComponent(path)).stem;
        for (const std::string& folder : folders)
            for (const ListedFile* candidate : candidates(folder, intent.status)) {
                const bool renamed = !candidate->path.starts_with(stem);
                if (isTheFile(candidate->status, intent.status) &&
                    (candidate->status.device == intent.status.device || !renamed))
                    return joinPath(folder, candidate->path);
            }
        return std::nullopt;
    }

    /// The folder is listed once however many files are looked for in it.
    const std::vector<const ListedFile*>& candidates(const std::string& folder,
                                                     const FileStatus& wanted) {
        static const std::vector<const ListedFile*> none;
        auto [known, isNew] = folders_.try_emplace(folder);
        Contents& contents = known->second;
        if (isNew) {
            if (auto listing = fileSystem_.list(folder, {}))
                contents.files = std::move(listing->files);
            for (const ListedFile& file : contents.files) {
                contents.byInode[file.status.inode].push_back(&file);
                contents.byDate[file.status.modified.time_since_epoch().count()].push_back(&file);
            }
        }
        const auto sameFile = contents.byInode.find(wanted.inode);
        if (sameFile != contents.byInode.end() &&
            sameFile->second.front()->status.device == wanted.device)
            return sameFile->second;
        const auto sameDate = contents.byDate.find(wanted.modified.time_since_epoch().count());
        return sameDate == contents.byDate.end() ? none : sameDate->second;
    }

    static LogEntry movedTo(const JournalledFile& file, const std::string& path) {
        LogEntry entry = file.intent.entry;
        const bool sameFolder = parentPath(entry.originalPath->toStdString()) == parentPath(path);
        const QString done = (sameFolder ? u"renamed to %1"_s : u"moved to %1"_s)
                                 .arg(QString::fromUtf8(lastComponent(
                                     sameFolder ? std::string_view(path) : parentPath(path)))) +
                             u", then interrupted"_s;
        addPhrase(entry, done);
        entry.currentPath = QString::fromUtf8(path);
        entry.undoable = true;
        return entry;
    }

    static LogEntry trashedAt(const JournalledFile& file, const std::string& path) {
        LogEntry entry = file.intent.entry;
        addPhrase(entry, u"moved to Trash, then interrupted"_s);
        entry.currentPath.reset();
        entry.trashedPath = QString::fromUtf8(path);
        entry.undoable = true;
        return entry;
    }

    static LogEntry lost(const JournalledFile& file) {
        LogEntry entry = file.intent.entry;
        const QString said = u"interrupted: the file was not found again"_s;
        addPhrase(entry, said);
        entry.isError = true;
        return entry;
    }

    struct Contents {
        std::vector<ListedFile> files;
        std::unordered_map<std::uint64_t, std::vector<const ListedFile*>> byInode;
        std::unordered_map<std::int64_t, std::vector<const ListedFile*>> byDate;
    };
    const FileSystem& fileSystem_;
    const TrashPlaces& trashPlaces_;
    std::map<std::string, Contents> folders_;
};

} // namespace

std::vector<LogEntry> recoveredEntries(const JournalContents& journal,
                                       const std::vector<LogEntry>& logs,
                                       const FileSystem& fileSystem,
                                       const TrashPlaces& trashPlaces) {
    // All of a run enters the log at once. When some of it is there, the state file was saved and
    // only the journal's end was missing; the entries that are not there are past the log's cap or
    // have been undone.
    QSet<QUuid> known;
    for (const LogEntry& entry : logs)
        known.insert(entry.id);
    const auto isKnown = [&](const JournalledFile& file) {
        return known.contains(file.intent.entry.id);
    };
    if (std::ranges::any_of(journal.files, isKnown))
        return {};

    Recovery recovery(fileSystem, trashPlaces);
    std::vector<LogEntry> entries;
    for (const JournalledFile& file : journal.files)
        if (auto entry = recovery.entryOf(file))
            entries.push_back(std::move(*entry));
    return entries;
}

std::set<std::string> touchedFolders(const JournalContents& journal) {
    std::set<std::string> folders;
    for (const JournalledFile& file : journal.files) {
        folders.insert(std::string(parentPath(file.intent.entry.originalPath->toStdString())));
        folders.insert(file.intent.targetFolders.begin(), file.intent.targetFolders.end());
    }
    return folders;
}

} // namespace quillon

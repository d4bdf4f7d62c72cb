#include "store/JournalRecovery.h"

#include "platform/FileNames.h"
#include "store/Sentences.h"

#include <QSet>

#include <algorithm>
#include <map>
#include <span>
#include <unordered_map>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void addPhrase(LogEntry& entry, const QString& phrase) {
    if (!entry.actionSummary.isEmpty())
        entry.actionSummary += u", "_s;
    entry.actionSummary += phrase;
}

/// Clocks and file systems round differently.
constexpr std::chrono::seconds roundingSlack{2};

bool isTheFile(const FileStatus& found, const FileStatus& intended) {
    if (!found.isSameFileAs(intended))
        return false;
    // The number of a file that is gone is given to new ones.
    if (found.created && intended.created)
        return *found.created == *intended.created;
    return found.modified == intended.modified;
}

/// A copy, or a move to another device, makes a new file that keeps the date to the nanosecond.
bool isLike(const FileStatus& found, const FileStatus& intended) {
    return !found.isSameFileAs(intended) && found.size == intended.size &&
           found.modified == intended.modified;
}

bool cameAfter(const FileStatus& found, const LogEntry& entry) {
    return found.created && *found.created >= entry.date - roundingSlack;
}

/// Finds files again in the folders where they may have been put. Each folder is listed once,
/// however many files are looked for in it.
class Finder {
public:
    Finder(const FileSystem& fileSystem, const JournalContents& journal) : fileSystem_(fileSystem) {
        for (const JournalledFile& file : journal.files)
            known_.emplace(file.intent.status.device, file.intent.status.inode);
    }

    /// Whether the file stands at `path`, however it looks now.
    bool stands(const std::string& path, const Intent& intent) const {
        const Expected<FileStatus> status = fileSystem_.status(path);
        return status && isTheFile(*status, intent.status);
    }

    /// Where the file, which is gone from its place, is now.
    std::optional<std::string> find(const std::vector<std::string>& folders, const Intent& intent) {
        for (const std::string& folder : folders)
            for (const ListedFile* file : like(contents(folder).byInode, intent.status.inode))
                if (isTheFile(file->status, intent.status))
                    return joinPath(folder, file->path);
        return findCopy(folders, intent, [&](const FileStatus& found) {
            return found.device != intent.status.device && !found.created;
        });
    }

    /// Where a copy of it is that has come into being since; `mayBe` says what else is taken for
    /// one. Among several only one that kept the name is believed.
    template <typename MayBe>
    std::optional<std::string> findCopy(const std::vector<std::string>& folders,
                                        const Intent& intent, MayBe mayBe) {
        const std::string original = intent.entry.originalPath->toStdString();
        const std::string_view stem = splitName(lastComponent(original)).stem;
        std::set<std::string> found;
        for (const std::string& folder : folders)
            for (const ListedFile* file : like(contents(folder).byDate, ticks(intent.status))) {
                const std::string path = joinPath(folder, file->path);
                // Files that came at the same moment look alike; none is the copy of another.
                if (!isLike(file->status, intent.status) ||
                    known_.contains({file->status.device, file->status.inode}))
                    continue;
                if (!cameAfter(file->status, intent.entry) && !mayBe(file->status))
                    continue;
                if (file->path.starts_with(stem))
                    return path;
                found.insert(path);
            }
        return found.size() == 1 ? std::optional(*found.begin()) : std::nullopt;
    }

private:
    template <typename Key>
    using Index = std::unordered_map<Key, std::vector<const ListedFile*>>;
    struct Contents {
        std::vector<ListedFile> files;
        Index<std::uint64_t> byInode;
        Index<std::int64_t> byDate;
    };

    static std::int64_t ticks(const FileStatus& status) {
        return status.modified.time_since_epoch().count();
    }

    template <typename Key>
    static std::span<const ListedFile* const> like(const Index<Key>& index, Key key) {
        const auto found = index.find(key);
        return found == index.end() ? std::span<const ListedFile* const>{}
                                    : std::span<const ListedFile* const>(found->second);
    }

    const Contents& contents(const std::string& folder) {
        auto [known, isNew] = folders_.try_emplace(folder);
        Contents& contents = known->second;
        if (!isNew)
            return contents;
        if (auto listing = fileSystem_.list(folder, {}))
            contents.files = std::move(listing->files);
        for (const ListedFile& file : contents.files) {
            contents.byInode[file.status.inode].push_back(&file);
            contents.byDate[ticks(file.status)].push_back(&file);
        }
        return contents;
    }

    const FileSystem& fileSystem_;
    std::set<std::pair<std::uint64_t, std::uint64_t>> known_; ///< every file of the journal
    std::map<std::string, Contents> folders_;
};

class Recovery {
public:
    Recovery(const FileSystem& fileSystem, const TrashPlaces& trashPlaces,
             const JournalContents& journal)
        : finder_(fileSystem, journal), fileSystem_(fileSystem), trashPlaces_(trashPlaces) {}

    std::optional<LogEntry> entryOf(const JournalledFile& file) {
        const Intent& intent = file.intent;
        const std::string place = lastKnownPlace(intent.entry);
        if (finder_.stands(place, intent))
            return whereItStands(file);
        if (const auto found = finder_.find(intent.targetFolders, intent))
            return *found == place ? soFar(file) : std::optional(movedTo(file, *found));
        const std::string folder(parentPath(intent.entry.originalPath->toStdString()));
        if (const auto found = finder_.find(trashPlaces_(folder), intent))
            return trashedAt(file, *found);
        return fileSystem_.status(place) ? soFar(file) : std::optional(lost(file));
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

    std::optional<LogEntry> whereItStands(const JournalledFile& file) {
        if (file.hasOutcome)
            return file.intent.entry;
        const auto none = [](const FileStatus&) { return false; };
        if (const auto copy = finder_.findCopy(file.intent.targetFolders, file.intent, none))
            return copiedTo(file, *copy);
        return std::nullopt;
    }

    static LogEntry copiedTo(const JournalledFile& file, const std::string& path) {
        LogEntry entry = file.intent.entry;
        const QString folder = QString::fromUtf8(lastComponent(parentPath(path)));
        addPhrase(entry, u"copied to %1, then interrupted"_s.arg(folder));
        entry.currentPath = QString::fromUtf8(path);
        return entry;
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

    Finder finder_;
    const FileSystem& fileSystem_;
    const TrashPlaces& trashPlaces_;
};

} // namespace

std::vector<LogEntry> recoveredEntries(const JournalContents& journal,
                                       const std::vector<LogEntry>& logs,
                                       const FileSystem& fileSystem,
                                       const TrashPlaces& trashPlaces) {
    // All of a run enters the log at once. When some of it is there, the state file was saved and
    // only the mark in the journal was missing; the entries that are not there are past the log's
    // cap or have been undone.
    QSet<QUuid> known;
    for (const LogEntry& entry : logs)
        known.insert(entry.id);
    QSet<QUuid> savedRuns;
    for (const JournalledFile& file : journal.files)
        if (!file.isUndo && known.contains(file.intent.entry.id))
            savedRuns.insert(file.run);

    Recovery recovery(fileSystem, trashPlaces, journal);
    std::vector<LogEntry> entries;
    for (const JournalledFile& file : journal.files)
        if (!file.isUndo && !savedRuns.contains(file.run))
            if (auto entry = recovery.entryOf(file))
                entries.push_back(std::move(*entry));
    return entries;
}

std::vector<LogEntry> dropTakenBack(const JournalContents& journal, std::vector<LogEntry>& logs,
                                    const FileSystem& fileSystem) {
    Finder finder(fileSystem, journal);
    const auto none = [](const FileStatus&) { return false; };
    std::vector<LogEntry> dropped;
    for (const JournalledFile& file : journal.files) {
        const Intent& intent = file.intent;
        const auto logged = std::ranges::find(logs, intent.entry.id, &LogEntry::id);
        if (!file.isUndo || logged == logs.end())
            continue;
        const QString place = logged->currentPath.value_or(logged->trashedPath.value_or(QString()));
        std::optional<QString> back;
        if (file.hasOutcome)
            back = intent.entry.currentPath.value_or(QString());
        else if (!finder.stands(place.toStdString(), intent))
            if (const auto found = finder.find(intent.targetFolders, intent))
                back = pathText(*found);
        if (back) {
            logged->currentPath = std::move(back);
            dropped.push_back(std::move(*logged));
            logs.erase(logged);
        } else if (const auto copy = finder.findCopy(intent.targetFolders, intent, none); copy) {
            addPhrase(*logged, u"undoing was interrupted: a copy is at %1"_s.arg(pathText(*copy)));
        }
    }
    return dropped;
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

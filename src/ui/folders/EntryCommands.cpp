#include "ui/folders/EntryCommands.h"

#include "model/Uuid.h"
#include "ui/CountTexts.h"
#include "ui/ShownName.h"

#include <QPointer>

#include <algorithm>
#include <filesystem>
#include <memory>

namespace quillon {

namespace {

/// The first of the places that is there, or else the first of them, or of the folders above it,
/// that lies in a folder that is there.
std::string nearest(const FileSystem& fileSystem, const std::vector<std::string>& places) {
    for (const std::string& place : places)
        if (fileSystem.status(place))
            return place;
    std::filesystem::path gone = places.front();
    while (gone.has_relative_path() && !fileSystem.status(gone.parent_path().string()))
        gone = gone.parent_path();
    return gone.string();
}

} // namespace

EntryCommands::EntryCommands(const Surroundings& around, QObject* parent)
    : QObject(parent), around_(around) {}

const LogEntry* EntryCommands::find(const QString& entryID) const {
    const auto id = uuidFromText(entryID);
    const auto& logs = around_.store.recentLogs();
    const auto found = std::ranges::find(logs, id.value_or(QUuid()), &LogEntry::id);
    return id && found != logs.end() ? &*found : nullptr;
}

void EntryCommands::reveal(const QString& entryID) {
    const LogEntry* const entry = find(entryID);
    if (!entry)
        return;
    std::vector<std::string> places;
    for (const auto& path : {entry->currentPath, entry->trashedPath, entry->originalPath})
        if (path && !path->isEmpty())
            places.push_back(path->toStdString());
    if (places.empty())
        return;
    const auto found = std::make_shared<std::string>();
    around_.background.start(
        [found, places, &fileSystem = around_.fileSystem] { *found = nearest(fileSystem, places); },
        [self = QPointer(this), found] {
            if (self)
                self->around_.fileManager.reveal(*found);
        });
}

void EntryCommands::undo(const QString& entryID) {
    const LogEntry* const entry = find(entryID);
    if (!entry || undoing_.contains(entry->id))
        return;
    const QUuid id = entry->id;
    undoing_.insert(id);
    Q_EMIT undoingChanged();
    around_.store.undo({id}, [self = QPointer(this), id](const AppStore::UndoReport& report) {
        if (self)
            self->undone(id, report);
    });
}

QStringList EntryCommands::undoing() const {
    QStringList keys;
    for (const QUuid& id : undoing_)
        keys.append(uuidText(id));
    return keys;
}

void EntryCommands::undone(const QUuid& entryID, const AppStore::UndoReport& report) {
    undoing_.remove(entryID);
    Q_EMIT undoingChanged();
    if (report.unsaved)
        return around_.toasts.show(report.unsaved->message);
    if (report.outcomes.empty())
        return;
    const UndoOutcome& outcome = report.outcomes.front();
    const QString name = shownName(outcome.entry.fileName);
    if (outcome.restored)
        around_.toasts.show(outcome.note.isEmpty()
                                ? putBackText(1, 0, name)
                                : tr("%1; %2", "“Put back a.txt”, and a clause")
                                      .arg(putBackText(1, 0, name), outcome.note));
    else if (outcome.restored.error().kind == ErrorKind::notFound)
        around_.toasts.show(putBackText(0, 1, name));
    else
        around_.toasts.show(tr("Couldn’t put %1 back: %2", "a file, and why")
                                .arg(name, outcome.restored.error().message));
}

} // namespace quillon

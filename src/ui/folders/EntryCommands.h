#pragma once

#include "platform/Background.h"
#include "platform/FileManager.h"
#include "platform/FileSystem.h"
#include "store/AppStore.h"
#include "ui/Toasts.h"

#include <QObject>
#include <QSet>
#include <QStringList>

namespace quillon {

/// What can be done with an entry of the activity log, wherever it is shown. Entries are named by
/// their ids.
class EntryCommands final : public QObject {
    Q_OBJECT
    /// The entries that are being undone.
    Q_PROPERTY(QStringList undoing READ undoing NOTIFY undoingChanged)

public:
    /// All borrowed for the object's life.
    struct Surroundings {
        AppStore& store;
        const FileSystem& fileSystem;
        Background& background;
        FileManager& fileManager;
        Toasts& toasts;
    };

    explicit EntryCommands(const Surroundings& around, QObject* parent = nullptr);

    /// Shows the file where it is now, or else the folder that it was in.
    Q_INVOKABLE void reveal(const QString& entryID);
    /// Puts the file back, and tells what came of it.
    Q_INVOKABLE void undo(const QString& entryID);
    [[nodiscard]] QStringList undoing() const;

Q_SIGNALS:
    void undoingChanged();

private:
    [[nodiscard]] const LogEntry* find(const QString& entryID) const;
    void undone(const QUuid& entryID, const AppStore::UndoReport& report);

    Surroundings around_;
    QSet<QUuid> undoing_;
};

} // namespace quillon

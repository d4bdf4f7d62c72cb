#pragma once

#include "platform/Background.h"
#include "platform/FileChooser.h"
#include "platform/FileSystem.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Question.h"
#include "ui/Toasts.h"
#include "ui/folders/FolderRow.h"

#include <QList>
#include <QUrl>

namespace quillon {

/// The watched folders as the sidebar lists them, with what is done to the list. Folders are named
/// by their ids.
class FolderListModel final : public KeyedRows<FolderRow> {
    Q_OBJECT
    Q_PROPERTY(QString currentKey READ currentKey NOTIFY currentChanged)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY currentChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY changed)
    Q_PROPERTY(quillon::Question* question READ question CONSTANT)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        const FileSystem& fileSystem;
        Background& background;
        FileChooser& fileChooser;
        Toasts& toasts;
        std::string home = {};
    };

    explicit FolderListModel(const Surroundings& around, QObject* parent = nullptr);
    ~FolderListModel() override;

    [[nodiscard]] QString currentKey() const;
    /// -1 when no folder is selected.
    [[nodiscard]] int currentIndex() const;
    [[nodiscard]] bool isEmpty() const { return around_.store.folders().empty(); }
    [[nodiscard]] bool isPaused() const { return around_.store.isPaused(); }
    [[nodiscard]] Question* question() { return &question_; }

    Q_INVOKABLE void select(const QString& key);
    Q_INVOKABLE void selectAt(int row);
    Q_INVOKABLE void togglePaused();

    /// Lets the user choose a folder to be watched.
    Q_INVOKABLE void chooseNew();
    /// Whether any of them may be a folder on this computer.
    Q_INVOKABLE bool mayTake(const QList<QUrl>& dropped) const;
    /// Watches those that are folders, before that row; at the end with -1.
    Q_INVOKABLE void addDropped(const QList<QUrl>& dropped, int row = -1);

    /// Before the one that is in that row now; behind the last with the number of rows.
    Q_INVOKABLE void moveBefore(const QString& key, int row);
    Q_INVOKABLE void moveBy(const QString& key, int offset);
    /// Asks first.
    Q_INVOKABLE void remove(const QString& key);
    /// Lets the user say where a folder is now. It keeps its rules.
    Q_INVOKABLE void locate(const QString& key);

    Q_INVOKABLE void copyRule(const QString& ruleID, const QString& key);

Q_SIGNALS:
    void changed();
    void currentChanged();

private:
    void refresh();
    void add(std::vector<std::string> paths, int row);
    void addFolders(const QStringList& paths, int row);
    void tellOfCopy();
    [[nodiscard]] FolderRow rowOf(const WatchedFolder& folder, std::size_t position) const;

    Surroundings around_;
    Question question_;
};

} // namespace quillon

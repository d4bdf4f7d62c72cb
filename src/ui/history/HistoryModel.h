#pragma once

#include "platform/Background.h"
#include "platform/Clock.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Sheets.h"
#include "ui/Toasts.h"
#include "ui/history/HistoryLayout.h"

#include <QVariantMap>

#include <atomic>
#include <memory>

namespace quillon {

/// The whole activity log by day and batch, searched and filtered. Holds rows while its sheet is
/// open.
class HistoryModel final : public KeyedRows<HistoryRow> {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY filterChanged)
    Q_PROPERTY(QStringList folderNames READ folderNames NOTIFY changed)
    Q_PROPERTY(int folderIndex READ folderIndex WRITE setFolderIndex NOTIFY changed)
    Q_PROPERTY(int outcome READ outcome WRITE setOutcome NOTIFY filterChanged)
    Q_PROPERTY(QString errorCount READ errorCount NOTIFY changed)
    Q_PROPERTY(QVariantMap days READ days NOTIFY changed)
    Q_PROPERTY(bool isLogEmpty READ isLogEmpty NOTIFY changed)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        const Clock& clock;
        Background& background;
        Sheets& sheets;
        Toasts& toasts;
    };

    explicit HistoryModel(const Surroundings& around, QObject* parent = nullptr);
    ~HistoryModel() override;

    /// Opens the sheet with that folder's entries, or with all of them.
    Q_INVOKABLE void open(const QString& folderID = {});
    /// The same with what went wrong.
    Q_INVOKABLE void openErrors(const QString& folderID = {});

    /// What the log holds.
    [[nodiscard]] static QString caption();
    [[nodiscard]] QString searchText() const { return filter_.words; }
    void setSearchText(const QString& words);
    /// "All folders" and then every watched folder.
    [[nodiscard]] QStringList folderNames() const;
    [[nodiscard]] int folderIndex() const;
    void setFolderIndex(int index);
    /// Everything, changes, errors.
    [[nodiscard]] int outcome() const { return int(filter_.outcome); }
    void setOutcome(int outcome);
    Q_INVOKABLE void clearFilter();

    /// How many errors there are; empty for none.
    [[nodiscard]] QString errorCount() const;
    /// The heading and the count of each day, by the rows' `day`.
    [[nodiscard]] const QVariantMap& days() const { return days_; }
    [[nodiscard]] bool isLogEmpty() const { return around_.store.recentLogs().empty(); }

    /// -1 for a row that is not there.
    Q_INVOKABLE int indexOf(const QString& key) const;
    /// Of a batch's row.
    Q_INVOKABLE void setOpen(const QString& key, bool open);
    /// The row of the batch that a row is in; the row itself when it is in none.
    Q_INVOKABLE int headOf(int row) const;
    Q_INVOKABLE void undoBatch(const QString& key);
    /// What has been taken back by then stays so.
    Q_INVOKABLE void stopUndo(const QString& key);

    /// The id of the newest entry among the rows that can be undone by itself; empty without one.
    Q_INVOKABLE QString newestUndoable() const;

Q_SIGNALS:
    void changed();
    void filterChanged();
    /// The rows are as they should be after something changed.
    void refreshed();

private:
    struct Undoing {
        UndoProgress progress;
        std::shared_ptr<std::atomic<bool>> mayContinue;
    };

    void show(HistoryFilter filter);
    void setFilter(HistoryFilter filter);
    void refresh();
    [[nodiscard]] std::optional<QUuid> batchOf(const QString& key) const;
    void undoProgressed(const QUuid& batchID, UndoProgress progress);
    void undoEnded(const QUuid& batchID, const AppStore::UndoReport& report);

    Surroundings around_;
    bool isShown_ = false;
    HistoryFilter filter_;
    QSet<QUuid> turnedBatches_;
    QHash<QUuid, Undoing> undoing_;
    QVariantMap days_;
    std::size_t errorCount_ = 0;
};

} // namespace quillon

#pragma once

#include "engine/FileJudge.h"
#include "platform/Background.h"
#include "platform/Timers.h"
#include "store/AppStore.h"
#include "ui/FolderLook.h"
#include "ui/LatestWork.h"
#include "ui/Sheets.h"
#include "ui/review/RunForecast.h"

#include <QAbstractListModel>

#include <memory>

namespace quillon {

/// What tidying a folder now would do, file by file: its rows are the files of one fate whose name,
/// rule or actions hold the words of the filter. Holds them while its sheet is open.
class PreviewModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString folderID READ folderID NOTIFY opened)
    Q_PROPERTY(QString title READ title NOTIFY opened)
    Q_PROPERTY(int tint READ tint NOTIFY opened)
    Q_PROPERTY(QString symbol READ symbol NOTIFY opened)
    Q_PROPERTY(bool isLooking READ isLooking NOTIFY changed)
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY changed)
    Q_PROPERTY(QString lookingText READ lookingText NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QStringList fates READ fates NOTIFY changed)
    Q_PROPERTY(int fate READ fate WRITE setFate NOTIFY changed)
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY changed)
    Q_PROPERTY(bool canRun READ canRun NOTIFY changed)
    Q_PROPERTY(QString whyNotRun READ whyNotRun NOTIFY changed)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        const Platform& platform;
        Background& background;
        Timers& timers;
        Sheets& sheets;
        /// A judge that answers what is known, and asks nobody.
        std::function<std::unique_ptr<FileJudge>()> makeJudge;
    };

    explicit PreviewModel(Surroundings around, QObject* parent = nullptr);
    ~PreviewModel() override;

    /// Opens the sheet and begins to look.
    Q_INVOKABLE void open(const QString& folderId);
    /// Looks once more.
    Q_INVOKABLE void look();

    [[nodiscard]] QString folderID() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] int tint() const { return look_.tint; }
    [[nodiscard]] QString symbol() const { return look_.symbol; }
    /// For long enough to say so.
    [[nodiscard]] bool isLooking() const { return state_ == State::looking; }
    [[nodiscard]] bool hasFailed() const { return state_ == State::failed; }
    [[nodiscard]] QString lookingText() const;
    /// Why there are no rows.
    [[nodiscard]] QString emptyText() const;
    /// What may be shown, each with its number.
    [[nodiscard]] QStringList fates() const;
    [[nodiscard]] int fate() const { return int(fate_); }
    void setFate(int fate);
    [[nodiscard]] QString filterText() const { return filter_; }
    void setFilterText(const QString& words);
    /// Whether the folder can be tidied, and that would do anything or ask Dobbin.
    [[nodiscard]] bool canRun() const;
    /// A sentence; empty when it can be, or while that isn't known.
    [[nodiscard]] QString whyNotRun() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void opened();
    void changed();

private:
    enum class State { closed, beginning, looking, failed, shown };

    void show(RunForecast forecast);
    void close();
    void giveUp();
    void forget();
    void layOut();
    void setRows(std::vector<std::uint32_t> rows);
    void setState(State state);
    [[nodiscard]] const ForecastFile& file(int row) const;

    Surroundings around_;
    State state_ = State::closed;
    WatchedFolder folder_;
    FolderLook look_;
    std::size_t expected_ = 0; ///< files, as last counted; 0 when not known yet
    std::shared_ptr<const RunForecast> forecast_ = std::make_shared<const RunForecast>();
    FileFate fate_ = FileFate::changed;
    QString filter_;
    std::vector<std::uint32_t> rows_; ///< of the forecast's files
    LatestWork looking_;
    LatestWork filtering_;
    std::unique_ptr<Timer> untilLooking_;
};

} // namespace quillon

#pragma once

#include "platform/Clock.h"
#include "platform/Timers.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/folders/ActivityEntry.h"
#include "ui/history/PopoverFolder.h"

#include <map>
#include <memory>

namespace quillon {

/// What the popover of the tray item shows, kept up to date while it is shown.
class PopoverModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY changed)
    Q_PROPERTY(QString statusText READ statusText NOTIFY changed)
    Q_PROPERTY(bool isTrouble READ isTrouble NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY changed)
    Q_PROPERTY(bool hasFolders READ hasFolders NOTIFY changed)
    Q_PROPERTY(bool hasEntries READ hasEntries NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* folders READ folders CONSTANT)
    Q_PROPERTY(QAbstractItemModel* entries READ entries CONSTANT)

public:
    /// Borrows all three for its life.
    PopoverModel(AppStore& store, const Clock& clock, Timers& timers, QObject* parent = nullptr);
    ~PopoverModel() override;

    [[nodiscard]] bool isShown() const { return isShown_; }
    void setShown(bool shown);

    [[nodiscard]] QString statusText() const { return statusText_; }
    [[nodiscard]] bool isTrouble() const { return isTrouble_; }
    [[nodiscard]] bool isPaused() const { return store_.isPaused(); }
    [[nodiscard]] bool hasFolders() const { return !store_.folders().empty(); }
    [[nodiscard]] bool hasEntries() const { return !store_.recentLogs().empty(); }
    [[nodiscard]] QAbstractItemModel* folders() { return &folders_; }
    /// The newest three.
    [[nodiscard]] QAbstractItemModel* entries() { return &entries_; }

    Q_INVOKABLE void run(const QString& folderID);
    Q_INVOKABLE void runAll();
    Q_INVOKABLE void togglePaused();

    Q_INVOKABLE void close() { Q_EMIT closeRequested(); }

    // These close it too.

    Q_INVOKABLE void openMainWindow();
    Q_INVOKABLE void openFolder(const QString& folderID);
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void changed();
    void closeRequested();
    void openMainWindowRequested();
    void settingsRequested();

private:
    /// A run that was asked for here.
    struct Run {
        std::uint64_t number = 0;
        bool isTold = false; ///< it takes long enough for that
        std::unique_ptr<Timer> delay;
    };
    /// What came of one, for a while.
    struct Outcome {
        QString text;
        std::unique_ptr<Timer> end;
    };

    void refresh();
    void endRun(const RunReport& report);
    [[nodiscard]] PopoverFolder rowOf(const WatchedFolder& folder, std::size_t position) const;
    [[nodiscard]] QString whenTidied(const WatchedFolder& folder) const;

    AppStore& store_;
    const Clock& clock_;
    Timers& timers_;
    bool isShown_ = false;
    bool isTrouble_ = false;
    QString statusText_;
    KeyedRows<PopoverFolder> folders_;
    KeyedRows<ActivityEntry> entries_;
    std::unique_ptr<Timer> minutes_;
    std::map<QUuid, Run> runs_;
    std::map<QUuid, Outcome> outcomes_;
};

} // namespace quillon

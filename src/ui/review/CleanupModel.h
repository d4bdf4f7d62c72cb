#pragma once

#include "platform/FileManager.h"
#include "store/AppStore.h"
#include "ui/FolderLook.h"
#include "ui/Sheets.h"
#include "ui/Toasts.h"
#include "ui/review/CleanupResult.h"
#include "ui/review/CleanupReview.h"

#include <QObject>

#include <atomic>
#include <memory>

namespace quillon {

/// A clean-up of one folder that is being reviewed, carried out or told of. Nothing moves before
/// tidy(); a clean-up that is under way goes on when its sheet is closed, and tells its end in a
/// toast.
class CleanupModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString state READ state NOTIFY changed)
    Q_PROPERTY(QString folderName READ folderName NOTIFY opened)
    Q_PROPERTY(int tint READ tint NOTIFY opened)
    Q_PROPERTY(QString symbol READ symbol NOTIFY opened)
    Q_PROPERTY(QAbstractItemModel* recipes READ recipes CONSTANT)
    Q_PROPERTY(QAbstractItemModel* files READ files CONSTANT)
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(bool hasNothing READ hasNothing NOTIFY changed)
    Q_PROPERTY(QString tickedText READ tickedText NOTIFY changed)
    Q_PROPERTY(QString noteText READ noteText NOTIFY changed)
    Q_PROPERTY(bool canTidy READ canTidy NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(bool isStopping READ isStopping NOTIFY changed)
    Q_PROPERTY(QString resultTitle READ resultTitle NOTIFY changed)
    Q_PROPERTY(QString resultText READ resultText NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* resultRows READ resultRows CONSTANT)
    Q_PROPERTY(bool hasFiled READ hasFiled NOTIFY changed)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(bool canKeep READ canKeep NOTIFY changed)
    Q_PROPERTY(bool hasAdded READ hasAdded NOTIFY changed)
    Q_PROPERTY(QString keepText READ keepText NOTIFY changed)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        const Platform& platform;
        Background& background;
        Timers& timers;
        FileManager& fileManager;
        Sheets& sheets;
        Toasts& toasts;
        /// A judge that asks nobody.
        std::function<std::unique_ptr<FileJudge>()> makeJudge;
    };

    explicit CleanupModel(Surroundings around, QObject* parent = nullptr);
    ~CleanupModel() override;

    /// Opens the sheet; one that is under way is shown as it is.
    Q_INVOKABLE void open(const QString& folderId);
    /// Lists the folder's files once more.
    Q_INVOKABLE void look();

    Q_INVOKABLE void chooseRecipe(int recipe, bool chosen);
    Q_INVOKABLE void setDays(int recipe, int days);
    /// A file's row, or a head's, which stands for those of its files that are shown.
    Q_INVOKABLE void tickRow(int row, bool ticked);
    /// Ticks every file that is shown; when all are ticked, none.
    Q_INVOKABLE void tickAll();
    Q_INVOKABLE void reveal(int row);
    /// The row of the recipe's head; -1 when it has none.
    Q_INVOKABLE int headOf(int recipe) const { return review_.files().headOf(recipe); }

    Q_INVOKABLE void tidy();
    /// What was filed by then stays so.
    Q_INVOKABLE void stop();
    Q_INVOKABLE void undo();
    /// The recipes become rules of the folder.
    Q_INVOKABLE void keep();

    /// "looking", "failed", "review", "tidying", "result", "undoing", or "" when there is none.
    [[nodiscard]] QString state() const;
    [[nodiscard]] QString folderName() const { return folder_.name(); }
    [[nodiscard]] int tint() const { return look_.tint; }
    [[nodiscard]] QString symbol() const { return look_.symbol; }
    [[nodiscard]] QAbstractItemModel* recipes() { return &review_.recipes(); }
    [[nodiscard]] QAbstractItemModel* files() { return &review_.files(); }
    [[nodiscard]] QString filterText() const { return review_.filterText(); }
    void setFilterText(const QString& words);
    /// Why no files are shown.
    [[nodiscard]] QString emptyText() const;
    /// Whether no recipe, ticked or not, would take any file.
    [[nodiscard]] bool hasNothing() const { return isReviewing() && review_.hasNothing(); }
    /// "37 files ticked · 3.8 GB"
    [[nodiscard]] QString tickedText() const;
    [[nodiscard]] QString noteText() const;
    [[nodiscard]] bool canTidy() const { return isReviewing() && review_.canTidy(); }
    [[nodiscard]] double progress() const {
        return total_ == 0 ? 0 : double(done_) / double(total_);
    }
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] bool isStopping() const { return mayContinue_ && !*mayContinue_; }
    [[nodiscard]] QString resultTitle() const { return result_.title; }
    [[nodiscard]] QString resultText() const { return result_.sentence; }
    [[nodiscard]] QAbstractItemModel* resultRows() { return &resultRows_; }
    [[nodiscard]] bool hasFiled() const { return result_.filed > 0; }
    [[nodiscard]] bool canUndo() const { return state_ == State::result && result_.canUndo; }
    [[nodiscard]] bool canKeep() const { return state_ == State::result && !hasKept_; }
    /// keep() has added rules.
    [[nodiscard]] bool hasAdded() const { return hasAdded_; }
    [[nodiscard]] QString keepText() const { return keepText_; }

    /// For tests.
    [[nodiscard]] const CleanupFileModel& fileRows() const { return review_.files(); }
    [[nodiscard]] const KeyedRows<RecipeRow>& recipeRows() const { return review_.recipes(); }
    [[nodiscard]] const CleanupResult& result() const { return result_; }

Q_SIGNALS:
    void opened();
    void changed();
    void progressChanged();

private:
    enum class State { closed, reviewing, tidying, result, undoing };

    void show(const WatchedFolder& folder);
    void close();
    void setState(State state);
    void progressed(std::size_t done, std::size_t total);
    void tidied(const AppStore::CleanupReport& report, const std::vector<Rule>& rules,
                std::size_t ticked);
    void undone(const AppStore::UndoReport& report);
    [[nodiscard]] bool isShown() const;
    [[nodiscard]] bool isReviewing() const { return state_ == State::reviewing; }
    [[nodiscard]] Progress reporter();

    Surroundings around_;
    State state_ = State::closed;
    WatchedFolder folder_;
    FolderLook look_;
    CleanupReview review_;

    QUuid batchID_;
    std::size_t done_ = 0;
    std::size_t total_ = 0;
    std::shared_ptr<std::atomic<bool>> mayContinue_;
    CleanupResult result_;
    KeyedRows<CleanupResultRow> resultRows_;
    bool hasKept_ = false;
    bool hasAdded_ = false;
    QString keepText_;
};

} // namespace quillon

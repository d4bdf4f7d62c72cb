#pragma once

#include "model/CleanupChoice.h"
#include "platform/Platform.h"
#include "platform/Timers.h"
#include "ui/KeyedRows.h"
#include "ui/LatestWork.h"
#include "ui/review/CleanupFileModel.h"
#include "ui/review/RecipeRow.h"

#include <QHash>

namespace quillon {

/// The files of a folder under the recipes of a clean-up that would take them, and what the user
/// chooses of both. Looks, counts and filters in the background; moves nothing.
class CleanupReview final : public QObject {
    Q_OBJECT

public:
    enum class Stage { listing, failed, shown };

    /// All borrowed for its life.
    struct Surroundings {
        const Platform& platform;
        Background& background;
        Timers& timers;
        /// A judge that asks nobody.
        std::function<std::unique_ptr<FileJudge>()> makeJudge;
    };

    explicit CleanupReview(Surroundings around, QObject* parent = nullptr);
    ~CleanupReview() override;

    /// Begins with the folder, and with what was chosen for it the last time.
    void open(const WatchedFolder& folder);
    /// Lists its files once more.
    void look();
    void close();

    void chooseRecipe(int recipe, bool chosen);
    void setDays(int recipe, int days);
    /// A file's row, or a head's, which stands for those of its files that are shown.
    void tickRow(int row, bool ticked);
    /// Ticks every file that is shown; when all are ticked, none.
    void tickAll();
    void setFilterText(const QString& words);

    [[nodiscard]] Stage stage() const { return stage_; }
    [[nodiscard]] const CleanupChoice& choice() const { return choice_; }
    [[nodiscard]] KeyedRows<RecipeRow>& recipes() { return recipes_; }
    [[nodiscard]] const KeyedRows<RecipeRow>& recipes() const { return recipes_; }
    [[nodiscard]] CleanupFileModel& files() { return files_; }
    [[nodiscard]] const CleanupFileModel& files() const { return files_; }
    [[nodiscard]] QString filterText() const { return filter_; }
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] bool hasNothing() const;
    [[nodiscard]] QString tickedText() const;
    [[nodiscard]] QString noteText() const;
    /// Whether something is ticked, and what is shown is what the days say.
    [[nodiscard]] bool canTidy() const;
    /// In listing order, as a run takes them.
    [[nodiscard]] ReadyFiles tickedFiles() const;

Q_SIGNALS:
    void changed();

private:
    void listed(Expected<ReadyFiles> files);
    void count();
    void filter();
    void layOut();
    void showRecipes();
    void drop();
    void ticksChanged();
    [[nodiscard]] const CleanupRecipe* recipeAt(int recipe) const;
    [[nodiscard]] std::uint8_t chosenBits() const;
    [[nodiscard]] std::vector<Rule> everyRule() const;
    [[nodiscard]] std::size_t ticked() const;
    [[nodiscard]] std::vector<CleanupGroup> groups() const;

    Surroundings around_;
    Stage stage_ = Stage::listing;
    WatchedFolder folder_;
    CleanupChoice choice_;
    QHash<QUuid, CleanupChoice> remembered_; ///< by folder
    std::shared_ptr<const ReadyFiles> ready_;
    std::vector<std::uint32_t> order_;
    std::vector<RecipeBits> matches_;
    std::vector<bool> unticked_;
    bool isCounting_ = false;   ///< what is matched is not what the days say
    bool saysCounting_ = false; ///< for long enough to say so
    QString filter_;
    std::shared_ptr<const std::vector<bool>> passing_; ///< by file; none: all of them
    KeyedRows<RecipeRow> recipes_;
    CleanupFileModel files_;
    LatestWork looking_;
    LatestWork filtering_;
    std::unique_ptr<Timer> untilCount_;
    std::unique_ptr<Timer> untilWords_;
};

} // namespace quillon

#pragma once

#include "model/CleanupRecipe.h"
#include "ui/review/CleanupGroups.h"

#include <QAbstractListModel>
#include <QStringList>

#include <memory>
#include <optional>

namespace quillon {

/// The files of a clean-up under the heads of their recipes, each with its tick. Makes what a row
/// says when it is asked for it.
class CleanupFileModel final : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// What stands in the list.
    struct Contents {
        std::shared_ptr<const ReadyFiles> files;
        std::vector<CleanupGroup> groups; ///< one a recipe; those not chosen are not shown
        std::vector<CleanupRecipe> recipes;
        std::vector<Rule> rules; ///< one a recipe
        std::vector<bool> shown; ///< one a recipe
        std::vector<bool> unticked;
        std::shared_ptr<const std::vector<bool>> passing; ///< by file; none: all of them
        int thisYear = 0;
    };
    /// Rows that stay where they were are not touched.
    void setContents(Contents contents);
    [[nodiscard]] const Contents& contents() const { return contents_; }
    /// The same rows with other ticks.
    void setTicks(std::vector<CleanupGroup> groups, std::vector<bool> unticked);

    /// A file's row; nothing for a head.
    [[nodiscard]] std::optional<std::uint32_t> fileAt(int row) const;
    /// The files of the row: its own, or those of its group that the filter lets through.
    [[nodiscard]] std::vector<std::uint32_t> filesAt(int row) const;
    [[nodiscard]] std::vector<std::uint32_t> shownFiles() const;
    /// The row of a recipe's head; -1 when there is none.
    [[nodiscard]] int headOf(int recipe) const;
    [[nodiscard]] QString pathAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Row {
        std::uint8_t recipe = 0;
        std::int64_t file = -1; ///< none for a head

        bool operator==(const Row&) const = default;
    };

    [[nodiscard]] std::vector<Row> rowsFor(const Contents& contents) const;
    [[nodiscard]] QVariant headData(const Row& row, int role) const;
    [[nodiscard]] QVariant fileData(const Row& row, int role) const;
    [[nodiscard]] QString whyHere(const Row& row) const;
    [[nodiscard]] const ListedFile& listed(std::int64_t file) const;

    Contents contents_;
    std::vector<Row> rows_;
};

} // namespace quillon

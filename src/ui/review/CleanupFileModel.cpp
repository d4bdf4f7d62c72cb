#include "ui/review/CleanupFileModel.h"

#include "engine/RuleSummary.h"
#include "platform/FileNames.h"
#include "store/Sentences.h"
#include "ui/CountTexts.h"
#include "ui/FileKindWord.h"
#include "ui/ShownName.h"
#include "ui/TimeTexts.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

enum Role {
    isHeadRole = Qt::UserRole,
    recipeRole,
    titleRole,
    kindRole,
    textRole,
    sizeRole,
    tickRole,
};

QString nameOf(const ListedFile& file) {
    return pathText(lastComponent(file.path));
}

/// "12 August", with the year when it isn't this one.
QString dayText(Timestamp moment, int thisYear) {
    const QDate day = localDay(moment);
    return QLocale().toString(day, day.year() == thisYear ? u"d MMMM"_s : u"d MMMM yyyy"_s);
}

} // namespace

void CleanupFileModel::setContents(Contents contents) {
    std::vector<Row> next = rowsFor(contents);
    const bool isSameList = contents.files == contents_.files;
    const auto fromStart = std::ranges::mismatch(rows_, next);
    const auto same = isSameList ? fromStart.in1 - rows_.begin() : 0;
    const auto most = std::min(rows_.end() - fromStart.in1, next.end() - fromStart.in2);
    std::ptrdiff_t tail = 0;
    while (isSameList && tail < most && *(rows_.end() - tail - 1) == *(next.end() - tail - 1))
        ++tail;
    const auto leaving = std::ptrdiff_t(rows_.size()) - same - tail;
    const auto coming = std::ptrdiff_t(next.size()) - same - tail;
    if (leaving > 0) {
        beginRemoveRows({}, int(same), int(same + leaving) - 1);
        rows_.erase(rows_.begin() + same, rows_.begin() + same + leaving);
        endRemoveRows();
    }
    // Nothing of the old list is left where the list is another one.
    contents_ = std::move(contents);
    if (coming > 0) {
        beginInsertRows({}, int(same), int(same + coming) - 1);
        rows_ = std::move(next);
        endInsertRows();
    }
    if (!rows_.empty())
        Q_EMIT dataChanged(index(0), index(int(rows_.size()) - 1));
}

void CleanupFileModel::setTicks(std::vector<CleanupGroup> groups, std::vector<bool> unticked) {
    contents_.groups = std::move(groups);
    contents_.unticked = std::move(unticked);
    if (!rows_.empty())
        Q_EMIT dataChanged(index(0), index(int(rows_.size()) - 1), {textRole, sizeRole, tickRole});
}

std::vector<CleanupFileModel::Row> CleanupFileModel::rowsFor(const Contents& contents) const {
    std::vector<Row> rows;
    for (std::size_t r = 0; r < contents.groups.size(); ++r) {
        if (!contents.shown[r])
            continue;
        const std::size_t head = rows.size();
        for (const std::uint32_t file : contents.groups[r].files) {
            if (contents.passing && !(*contents.passing)[file])
                continue;
            if (rows.size() == head)
                rows.push_back({.recipe = std::uint8_t(r)});
            rows.push_back({.recipe = std::uint8_t(r), .file = file});
        }
    }
    return rows;
}

std::optional<std::uint32_t> CleanupFileModel::fileAt(int row) const {
    if (row < 0 || row >= rowCount() || rows_[std::size_t(row)].file < 0)
        return std::nullopt;
    return std::uint32_t(rows_[std::size_t(row)].file);
}

std::vector<std::uint32_t> CleanupFileModel::filesAt(int row) const {
    if (const auto file = fileAt(row))
        return {*file};
    std::vector<std::uint32_t> files;
    if (row < 0 || row >= rowCount())
        return files;
    const std::uint8_t recipe = rows_[std::size_t(row)].recipe;
    for (const Row& each : rows_)
        if (each.recipe == recipe && each.file >= 0)
            files.push_back(std::uint32_t(each.file));
    return files;
}

std::vector<std::uint32_t> CleanupFileModel::shownFiles() const {
    std::vector<std::uint32_t> files;
    for (const Row& row : rows_)
        if (row.file >= 0)
            files.push_back(std::uint32_t(row.file));
    return files;
}

int CleanupFileModel::headOf(int recipe) const {
    const auto found = std::ranges::find_if(
        rows_, [recipe](const Row& row) { return row.file < 0 && row.recipe == recipe; });
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

QString CleanupFileModel::pathAt(int row) const {
    const auto file = fileAt(row);
    return file ? pathText(joinPath(contents_.files->folder, listed(*file).path)) : QString();
}

const ListedFile& CleanupFileModel::listed(std::int64_t file) const {
    return contents_.files->files[std::size_t(file)];
}

int CleanupFileModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant CleanupFileModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Row& row = rows_[std::size_t(index.row())];
    if (role == isHeadRole)
        return row.file < 0;
    if (role == recipeRole)
        return int(row.recipe);
    return row.file < 0 ? headData(row, role) : fileData(row, role);
}

QVariant CleanupFileModel::headData(const Row& row, int role) const {
    const CleanupGroup& group = contents_.groups[row.recipe];
    const std::size_t all = group.files.size();
    switch (role) {
    case titleRole:
        return contents_.recipes[row.recipe].title;
    case textRole:
        return summaryText(contents_.rules[row.recipe].actions.front());
    case sizeRole:
        return group.ticked == all
                   ? tr("%1 · %2", "a number of files, their size")
                         .arg(fileCount(all), sizeText(group.size))
                   : tr("%L1 of %L2 · %3", "files that are ticked, all, the size of the ticked")
                         .arg(group.ticked)
                         .arg(all)
                         .arg(sizeText(group.tickedSize));
    case tickRole:
        return group.ticked == 0     ? Qt::Unchecked
               : group.ticked == all ? Qt::Checked
                                     : Qt::PartiallyChecked;
    default:
        return QString();
    }
}

QVariant CleanupFileModel::fileData(const Row& row, int role) const {
    const ListedFile& file = listed(row.file);
    switch (role) {
    case titleRole:
        return shownName(nameOf(file));
    case kindRole:
        return file.status.type == FileType::directory ? rawValue(FileKind::folder)
                                                       : fileKindWord(nameOf(file));
    case textRole:
        return whyHere(row);
    case sizeRole:
        return file.status.type == FileType::directory ? QString() : sizeText(file.status.size);
    case tickRole:
        return contents_.unticked[std::size_t(row.file)] ? Qt::Unchecked : Qt::Checked;
    default:
        return {};
    }
}

QString CleanupFileModel::whyHere(const Row& row) const {
    const FileStatus& status = listed(row.file).status;
    if (contents_.recipes[row.recipe].days)
        return tr("Last opened %1", "a day").arg(dayText(status.accessed, contents_.thisYear));
    return tr("Last changed %1", "a day").arg(dayText(status.modified, contents_.thisYear));
}

QHash<int, QByteArray> CleanupFileModel::roleNames() const {
    return {{isHeadRole, "isHead"}, {recipeRole, "recipe"},   {titleRole, "title"},
            {kindRole, "kind"},     {textRole, "secondLine"}, {sizeRole, "sizeText"},
            {tickRole, "tick"}};
}

} // namespace quillon

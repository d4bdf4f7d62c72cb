#pragma once

#include <QAbstractListModel>
#include <QMetaProperty>
#include <QSet>

#include <algorithm>
#include <vector>

namespace quillon {

/// A list for QML of rows that keep their identity: what changes is told as insertions, removals,
/// moves and changes, so that a view keeps its place and its focus. A Row is a gadget with a
/// QString `key` that no other row has, and with `==`; its properties are the roles.
template <typename Row>
class KeyedRows : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(rows_.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        const QMetaProperty property = Row::staticMetaObject.property(role - Qt::UserRole);
        return index.isValid() && property.isValid()
                   ? property.readOnGadget(&rows_[std::size_t(index.row())])
                   : QVariant();
    }
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override {
        QHash<int, QByteArray> names;
        for (int i = 0; i < Row::staticMetaObject.propertyCount(); ++i)
            names.insert(Qt::UserRole + i, Row::staticMetaObject.property(i).name());
        return names;
    }

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    [[nodiscard]] const Row* row(const QString& key) const {
        const auto found = std::ranges::find(rows_, key, &Row::key);
        return found == rows_.end() ? nullptr : &*found;
    }

    void setRows(const std::vector<Row>& next) {
        removeAllBut(next);
        place(next);
        for (std::size_t i = 0; i < rows_.size();) {
            std::size_t end = i;
            for (; end < rows_.size() && rows_[end] != next[end]; ++end)
                rows_[end] = next[end];
            if (end > i)
                Q_EMIT dataChanged(index(int(i)), index(int(end) - 1));
            i = std::max(end, i + 1);
        }
    }

private:
    static QSet<QString> keysOf(const std::vector<Row>& rows) {
        QSet<QString> keys;
        for (const Row& row : rows)
            keys.insert(row.key);
        return keys;
    }
    void remove(std::size_t first, std::size_t end) {
        beginRemoveRows({}, int(first), int(end) - 1);
        rows_.erase(rows_.begin() + std::ptrdiff_t(first), rows_.begin() + std::ptrdiff_t(end));
        endRemoveRows();
    }
    void removeAllBut(const std::vector<Row>& next) {
        const QSet<QString> kept = keysOf(next);
        for (std::size_t end = rows_.size(); end > 0;) {
            std::size_t first = end;
            while (first > 0 && !kept.contains(rows_[first - 1].key))
                --first;
            if (first < end)
                remove(first, end);
            end = first > 0 ? first - 1 : 0;
        }
    }
    /// Brings in what is new, in runs, and the rest into its order.
    void place(const std::vector<Row>& next) {
        const QSet<QString> known = keysOf(rows_);
        for (std::size_t i = 0; i < next.size(); ++i) {
            if (i < rows_.size() && rows_[i].key == next[i].key)
                continue;
            const auto at = rows_.begin() + std::ptrdiff_t(std::min(i, rows_.size()));
            const auto found = std::ranges::find(at, rows_.end(), next[i].key, &Row::key);
            if (found != rows_.end()) {
                beginMoveRows({}, int(found - rows_.begin()), int(found - rows_.begin()), {},
                              int(i));
                std::rotate(at, found, found + 1);
                endMoveRows();
                continue;
            }
            std::size_t end = i + 1;
            while (end < next.size() && !known.contains(next[end].key))
                ++end;
            beginInsertRows({}, int(i), int(end) - 1);
            rows_.insert(at, next.begin() + std::ptrdiff_t(i), next.begin() + std::ptrdiff_t(end));
            endInsertRows();
        }
        if (rows_.size() > next.size())
            remove(next.size(), rows_.size());
    }

    std::vector<Row> rows_;
};

} // namespace quillon

#pragma once

#include "model/Condition.h"
#include "model/MatchMode.h"

#include <QAbstractListModel>
#include <QStringList>

#include <vector>

namespace quillon {

/// The conditions of a rule that is being edited: a row for each, with what it takes to edit it.
class ConditionListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY edited)
    Q_PROPERTY(QStringList attributes READ attributes CONSTANT)
    Q_PROPERTY(QStringList kinds READ kinds CONSTANT)
    Q_PROPERTY(QStringList units READ units CONSTANT)

public:
    enum Role {
        attributeRole = Qt::UserRole, ///< index into `attributes`
        operatorsRole,                ///< texts of those on offer
        operatorRole,                 ///< index into them
        editorRole,                   ///< name of the control that the value is set with
        valueRole,
        placeholderRole,
        tailRole,   ///< the word after a value that is a number
        choiceRole, ///< index into `kinds`; -1 for a value that is none
        unitRole,   ///< index into `units`
        errorRole,  ///< a sentence about the value
        joinerRole, ///< the word before the row
        spokenRole, ///< what the row is called
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<Condition>& conditions() const { return conditions_; }
    void setConditions(std::vector<Condition> conditions);
    void setMatchMode(MatchMode mode);

    /// The first row whose value can't be used, from now on also because it is empty; -1 when there
    /// is none.
    int check();

    Q_INVOKABLE int add(); ///< the new row
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void move(int from, int to);
    Q_INVOKABLE void setAttribute(int row, int index);
    Q_INVOKABLE void setOperator(int row, int index);
    Q_INVOKABLE void setValue(int row, const QString& text);
    Q_INVOKABLE void setChoice(int row, int index);
    Q_INVOKABLE void setUnit(int row, int index);
    /// The value has been typed to its end.
    Q_INVOKABLE void finishValue(int row);

    [[nodiscard]] int count() const { return static_cast<int>(conditions_.size()); }
    [[nodiscard]] static QStringList attributes();
    [[nodiscard]] static QStringList kinds();
    [[nodiscard]] static QStringList units();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// By whomever.
    void edited();

private:
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < count(); }
    [[nodiscard]] std::vector<MatchOperator> operators(const Condition& condition) const;
    [[nodiscard]] QString joiner(int row) const;
    [[nodiscard]] QString error(const Condition& condition) const;
    void change(int row, const Condition& condition);
    void rowsMoved();

    std::vector<Condition> conditions_;
    MatchMode mode_ = MatchMode::all;
    bool isChecked_ = false;
};

} // namespace quillon

#pragma once

#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Toasts.h"
#include "ui/folders/RuleRow.h"

namespace quillon {

/// The rules of one folder in their order, with what is done to them. Rules are named by their ids.
class RuleListModel final : public KeyedRows<RuleRow> {
    Q_OBJECT

public:
    /// Borrows both for its life.
    RuleListModel(AppStore& store, Toasts& toasts, QObject* parent = nullptr);

    /// Of that folder; of none when it is unknown. To be called after every change of it.
    void show(const QUuid& folderID);

    Q_INVOKABLE void setEnabled(const QString& key, bool enabled);
    Q_INVOKABLE void duplicate(const QString& key);
    /// At once; a toast offers to undo it.
    Q_INVOKABLE void remove(const QString& key);
    /// Before the one that is in that row now; behind the last with the number of rows.
    Q_INVOKABLE void moveBefore(const QString& key, int row);
    Q_INVOKABLE void moveBy(const QString& key, int offset);

private:
    AppStore& store_;
    Toasts& toasts_;
    QUuid folderID_;
};

} // namespace quillon

#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The whole activity log by day and batch, searched and filtered.
class HistoryModel final : public QObject {
    Q_OBJECT

public:
    explicit HistoryModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

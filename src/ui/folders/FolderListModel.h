#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The watched folders as the sidebar lists them.
class FolderListModel final : public QObject {
    Q_OBJECT

public:
    explicit FolderListModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

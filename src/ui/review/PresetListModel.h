#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The ready-made rules, for one folder.
class PresetListModel final : public QObject {
    Q_OBJECT

public:
    explicit PresetListModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// What the popover of the tray item shows.
class PopoverModel final : public QObject {
    Q_OBJECT

public:
    explicit PopoverModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// What can be done with an entry of the activity log, wherever it is shown.
class EntryCommands final : public QObject {
    Q_OBJECT

public:
    explicit EntryCommands(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

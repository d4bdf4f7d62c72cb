#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// A clean-up that is being reviewed, carried out or told of.
class CleanupModel final : public QObject {
    Q_OBJECT

public:
    explicit CleanupModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

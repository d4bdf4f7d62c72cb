#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The settings as their window shows them.
class SettingsModel final : public QObject {
    Q_OBJECT

public:
    explicit SettingsModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

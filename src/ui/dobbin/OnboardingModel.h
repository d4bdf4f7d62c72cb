#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The first-run introduction.
class OnboardingModel final : public QObject {
    Q_OBJECT

public:
    explicit OnboardingModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

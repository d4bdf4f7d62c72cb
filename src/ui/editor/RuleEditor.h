#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The draft of one rule that is being edited. Nothing is saved before save().
class RuleEditor final : public QObject {
    Q_OBJECT

public:
    explicit RuleEditor(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

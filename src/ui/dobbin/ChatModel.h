#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The conversation with Dobbin as its panel shows it.
class ChatModel final : public QObject {
    Q_OBJECT

public:
    explicit ChatModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// What tidying a folder now would do, file by file.
class PreviewModel final : public QObject {
    Q_OBJECT

public:
    explicit PreviewModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

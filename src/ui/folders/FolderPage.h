#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// The selected folder: its header, its rules, its newest activity and its banner.
class FolderPage final : public QObject {
    Q_OBJECT

public:
    explicit FolderPage(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

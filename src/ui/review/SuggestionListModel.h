#pragma once

#include "store/AppStore.h"

#include <QObject>

namespace quillon {

/// Rules that are offered for the selected folder.
class SuggestionListModel final : public QObject {
    Q_OBJECT

public:
    explicit SuggestionListModel(AppStore& store, QObject* parent = nullptr);

private:
    AppStore& store_;
};

} // namespace quillon

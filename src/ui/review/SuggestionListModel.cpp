#include "ui/review/SuggestionListModel.h"

namespace quillon {

SuggestionListModel::SuggestionListModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

#include "ui/history/HistoryModel.h"

namespace quillon {

HistoryModel::HistoryModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

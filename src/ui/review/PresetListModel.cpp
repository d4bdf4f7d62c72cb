#include "ui/review/PresetListModel.h"

namespace quillon {

PresetListModel::PresetListModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

#include "ui/review/PreviewModel.h"

namespace quillon {

PreviewModel::PreviewModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

#include "ui/review/CleanupModel.h"

namespace quillon {

CleanupModel::CleanupModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

#include "ui/history/PopoverModel.h"

namespace quillon {

PopoverModel::PopoverModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

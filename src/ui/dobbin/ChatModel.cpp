#include "ui/dobbin/ChatModel.h"

namespace quillon {

ChatModel::ChatModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

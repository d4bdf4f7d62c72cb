#include "ui/folders/FolderListModel.h"

namespace quillon {

FolderListModel::FolderListModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

#include "ui/folders/FolderPage.h"

namespace quillon {

FolderPage::FolderPage(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

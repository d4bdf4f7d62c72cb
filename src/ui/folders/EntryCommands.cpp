#include "ui/folders/EntryCommands.h"

namespace quillon {

EntryCommands::EntryCommands(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

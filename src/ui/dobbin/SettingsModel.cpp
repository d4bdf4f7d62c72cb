#include "ui/dobbin/SettingsModel.h"

namespace quillon {

SettingsModel::SettingsModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

#include "ui/dobbin/OnboardingModel.h"

namespace quillon {

OnboardingModel::OnboardingModel(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon

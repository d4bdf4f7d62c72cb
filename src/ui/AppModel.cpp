#include "ui/AppModel.h"

namespace quillon {

AppModel::AppModel(const Surroundings& around, QObject* parent)
    : QObject(parent)
    , folders_(around.store)
    , page_(around.store)
    , entries_(around.store)
    , editor_(around.store)
    , preview_(around.store)
    , cleanup_(around.store)
    , presets_(around.store)
    , suggestions_(around.store)
    , history_(around.store)
    , popover_(around.store)
    , chat_(around.store)
    , settings_(around.store)
    , onboarding_(around.store)
{}

AppModel::~AppModel() = default;

} // namespace quillon

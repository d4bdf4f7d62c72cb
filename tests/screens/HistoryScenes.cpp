#include "Scene.h"

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

std::vector<Scene> historyScenes() {
    return {};
}

} // namespace quillon::testing

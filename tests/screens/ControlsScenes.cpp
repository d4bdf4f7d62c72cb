#include "Scene.h"

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

std::vector<Scene> controlsScenes() {
    return {};
}

} // namespace quillon::testing

#include "Scene.h"

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

std::vector<Scene> dobbinScenes() {
    return {};
}

} // namespace quillon::testing

#include "Scene.h"

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

std::vector<Scene> editorScenes() {
    return {};
}

} // namespace quillon::testing

#include "Scene.h"

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

std::vector<Scene> mainScenes() {
    return {{.name = u"main"_s}};
}

} // namespace quillon::testing

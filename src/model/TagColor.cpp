#include "model/TagColor.h"

namespace quillon {

QString label(TagColor color) {
    QString name = rawValue(color);
    name[0] = name.at(0).toUpper();
    return name;
}

} // namespace quillon

#include "model/PathText.h"

namespace quillon {

namespace {

QString withoutTrailingSlashes(QString path) {
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString lastPathComponent(const QString& path) {
    const QString trimmed = withoutTrailingSlashes(path);
    return trimmed.size() == 1 ? trimmed : trimmed.sliced(trimmed.lastIndexOf(u'/') + 1);
}

QString appendedPath(const QString& folder, const QString& name) {
    const QString trimmed = withoutTrailingSlashes(folder);
    return trimmed.endsWith(u'/') ? trimmed + name : trimmed + u'/' + name;
}

} // namespace quillon

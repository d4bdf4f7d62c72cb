#include "ui/FileKindWord.h"

#include "engine/KindTables.h"

namespace quillon {

QString fileKindWord(const QString& fileName) {
    const QStringView name(fileName);
    const qsizetype dot = name.lastIndexOf(u'.');
    const bool hasExtension = dot > 0 && dot + 1 < name.size();
    const auto byName = kindByName(name);
    const auto kind = byName || !hasExtension ? byName : kindByExtension(name.sliced(dot + 1));
    return rawValue(kind.value_or(FileKind::other));
}

} // namespace quillon

#include "cli/ShellWord.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QString shellWord(const QString& path) {
    const auto isPlain = [](QChar c) {
        return c.isLetterOrNumber() || u"/._-+,:@%="_s.contains(c);
    };
    if (!path.isEmpty() && std::ranges::all_of(path, isPlain))
        return path;
    return u'\'' + QString(path).replace(u'\'', u"'\\''"_s) + u'\'';
}

} // namespace quillon

#include "assistant/PromptLine.h"

#include "assistant/PlainLine.h"

#include <algorithm>

namespace quillon {

QString promptLine(const QString& text, qsizetype most) {
    // No character has fewer bytes than units.
    const QString line = cutTo(plainLine(text).trimmed(), most + 1);
    const QByteArray bytes = line.toUtf8();
    if (bytes.size() <= most)
        return line;
    const auto isInside = [&](qsizetype at) { return (uchar(bytes[at]) & 0xC0U) == 0x80U; };
    qsizetype end = std::max<qsizetype>(0, most - 3); // the "…" has three
    while (end > 0 && isInside(end))
        --end;
    return QString::fromUtf8(bytes.first(end)).trimmed() + u'…';
}

QString promptName(const QString& name) {
    return promptLine(name, 120);
}

QString promptFileName(const QString& name) {
    return promptLine(name, 180);
}

} // namespace quillon

#include "assistant/PromptLine.h"

#include "assistant/PlainLine.h"

namespace quillon {

QString promptLine(const QString& text, qsizetype most) {
    const QString line = plainLine(text).trimmed();
    return line.size() <= most ? line : cutTo(line, most - 1).trimmed() + u'…';
}

QString promptName(const QString& name) {
    return promptLine(name, 80);
}

QString promptFileName(const QString& name) {
    return promptLine(name, 120);
}

} // namespace quillon

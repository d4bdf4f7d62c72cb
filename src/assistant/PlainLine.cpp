#include "assistant/PlainLine.h"

#include <QList>

namespace quillon {

QString plainLine(const QString& text) {
    QString line;
    line.reserve(text.size());
    for (const char32_t c : text.toUcs4()) {
        if (c == QChar::ReplacementCharacter)
            continue;
        switch (QChar::category(c)) {
        case QChar::Other_Control:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            line += u' ';
            break;
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
            break;
        default:
            line += QChar::fromUcs4(c);
        }
    }
    return line;
}

QString cutTo(const QString& text, qsizetype most) {
    if (text.size() <= most)
        return text;
    return text.left(text[most - 1].isHighSurrogate() ? most - 1 : most);
}

} // namespace quillon

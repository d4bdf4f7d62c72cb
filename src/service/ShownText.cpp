#include "service/ShownText.h"

#include <QChar>
#include <QList>

#include <algorithm>

namespace quillon {
namespace {

bool isHarmless(QChar c) {
    const char16_t code = c.unicode();
    if (code < 0x80)
        return code >= 0x20 && code != 0x7f;
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format: // embeddings, overrides and isolates, not the joiners of emoji
        return code < 0x200e || (code > 0x200f && code < 0x202a) ||
               (code > 0x202e && code < 0x2066) || code > 0x2069;
    default:
        return true;
    }
}

QString escaped(QChar c) {
    switch (c.unicode()) {
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const bool narrow = c.unicode() < 0x100;
    return (narrow ? QStringLiteral("\\x%1") : QStringLiteral("\\u%1"))
        .arg(int(c.unicode()), narrow ? 2 : 4, 16, QLatin1Char('0'));
}

bool isWide(char32_t code) {
    struct Range {
        char32_t first, last;
    };
    static constexpr Range ranges[] = {{0x1100, 0x115f},   {0x2e80, 0x303e},  {0x3041, 0xa4cf},
                                       {0xac00, 0xd7a3},   {0xf900, 0xfaff},  {0xfe30, 0xfe6f},
                                       {0xff00, 0xff60},   {0xffe0, 0xffe6},  {0x1f300, 0x1f64f},
                                       {0x1f900, 0x1f9ff}, {0x20000, 0x3fffd}};
    return std::ranges::any_of(
        ranges, [code](const Range& range) { return code >= range.first && code <= range.last; });
}

} // namespace

QString shownText(const QString& text) {
    if (std::ranges::all_of(text, isHarmless))
        return text;
    QString shown;
    for (const QChar c : text)
        shown += isHarmless(c) ? QString(c) : escaped(c);
    return shown;
}

qsizetype shownWidth(QStringView text) {
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    if (std::ranges::all_of(text, isAscii))
        return text.size();
    qsizetype width = 0;
    for (const uint code : text.toUcs4()) {
        const QChar::Category category = QChar::category(code);
        if (category != QChar::Mark_NonSpacing && category != QChar::Mark_Enclosing &&
            category != QChar::Other_Format)
            width += isWide(code) ? 2 : 1;
    }
    return width;
}

} // namespace quillon

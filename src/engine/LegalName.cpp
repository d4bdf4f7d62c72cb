#include "engine/LegalName.h"

#include "platform/FileNames.h"

namespace quillon {

namespace {

bool breaksLine(QChar c) {
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QString cleaned(QString text) {
    for (QChar& c : text) {
        if (c == u'/')
            c = u'-';
        else if (breaksLine(c))
            c = u' ';
    }
    return text;
}

bool isInvisible(const QString& text) {
    return std::ranges::all_of(
        text, [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Format; });
}

} // namespace

std::string legalName(const QString& stem, const QString& extension, const QString& fallbackStem) {
    QString text = cleaned(stem);
    if (isInvisible(text))
        text = cleaned(fallbackStem);
    if (text.startsWith(u'.'))
        text[0] = u'_';
    return fittedName(text.toStdString(), cleaned(extension).toStdString());
}

} // namespace quillon

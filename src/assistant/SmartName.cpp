#include "assistant/SmartName.h"

#include "assistant/PlainLine.h"
#include "engine/LegalName.h"

#include <QDate>
#include <QStringList>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestPart = 90;

QString trimmed(QStringView text) {
    const auto isEdge = [](QChar c) { return c.isSpace() || c == u'.'; };
    while (!text.isEmpty() && isEdge(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isEdge(text.back()))
        text.chop(1);
    return text.toString();
}

/// "AT&T/Cingular" becomes "AT&T-Cingular", and "../../etc" becomes "etc".
QString withoutSeparators(QString text) {
    text.replace(u'\\', u'/');
    QStringList components;
    for (const QStringView component : QStringView(text).split(u'/'))
        if (const QString kept = trimmed(component); !kept.isEmpty())
            components.append(kept);
    return components.join(u'-');
}

bool isDate(const QString& text) {
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return text.size() == 10 && isDigit(text.front()) &&
           QDate::fromString(text, u"yyyy-MM-dd").isValid();
}

} // namespace

std::optional<QString> cleanName(const QString& part) {
    const QString line = withoutSeparators(plainLine(part).simplified());
    const QString cleaned = trimmed(cutTo(trimmed(line), longestPart));
    return cleaned.isEmpty() ? std::nullopt : std::optional(cleaned);
}

QString assemble(const QString& date, const QString& from, const QString& what,
                 const QString& amount) {
    QStringList parts;
    if (const auto day = cleanName(date); day && isDate(*day))
        parts.append(*day);
    for (const QString& other : {from, what, amount})
        if (const auto part = cleanName(other))
            parts.append(*part);
    if (parts.isEmpty())
        return {};
    return QString::fromStdString(legalName(parts.join(u' '), {}, u"_"_s));
}

} // namespace quillon

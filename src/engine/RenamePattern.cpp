#include "engine/RenamePattern.h"

#include "engine/DateFormats.h"
#include "engine/LegalName.h"
#include "platform/FileNames.h"

namespace quillon {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// `digits` as a number, at most `limit`; nothing when it is none.
std::optional<int> parseWidth(QStringView digits, int limit) {
    if (digits.isEmpty() || !std::ranges::all_of(digits, isDigit))
        return std::nullopt;
    int width = 0;
    for (const QChar digit : digits)
        width = std::min(width * 10 + digit.digitValue(), limit);
    return width;
}

class Tokens {
public:
    Tokens(const RenameSource& source, DateFormats& dates) : source_(source), dates_(dates) {}

    /// What stands for the token with that text between its braces; nothing when there is none.
    [[nodiscard]] std::optional<QString> text(QStringView body) const {
        if (body.size() == 1 && isDigit(body.front()) && body.front() != u'0')
            return source_.captures.value(body.front().digitValue() - 1);
        if (body.startsWith(u"date:"))
            return date(body.sliced(5));
        if (body.startsWith(u"counter:"))
            return counter(body.sliced(8));
        return plain(body);
    }

private:
    [[nodiscard]] std::optional<QString> date(QStringView format) const {
        // "{date:{1}}": the capture is the token, the braces around it are text.
        const bool endsInCapture = format.size() >= 2 && format.at(format.size() - 2) == u'{' &&
                                   isDigit(format.back()) && format.back() != u'0';
        if (endsInCapture)
            return std::nullopt;
        return dates_.format(format.toString(), source_.date);
    }

    [[nodiscard]] std::optional<QString> counter(QStringView digits) const {
        const std::optional<int> width = parseWidth(digits, int(maxNameBytes));
        if (!width)
            return std::nullopt;
        return QString::number(source_.counter).rightJustified(*width, u'0');
    }

    [[nodiscard]] std::optional<QString> plain(QStringView body) const {
        const NameParts parts = splitName(source_.fileName);
        if (body == u"counter")
            return QString::number(source_.counter);
        if (body == u"name")
            return QString::fromUtf8(parts.stem);
        if (body == u"ext")
            return QString::fromUtf8(parts.extension);
        if (body == u"date")
            return dates_.format(QStringLiteral("yyyy-MM-dd"), source_.date);
        if (body == u"datetime")
            return dates_.format(QStringLiteral("yyyy-MM-dd-HHmmss"), source_.date);
        return std::nullopt;
    }

    const RenameSource& source_;
    DateFormats& dates_;
};

QString substituted(QStringView pattern, const Tokens& tokens) {
    QString out;
    qsizetype at = 0;
    qsizetype close = -1;
    for (qsizetype open = pattern.indexOf(u'{'); open >= 0; open = pattern.indexOf(u'{', at)) {
        if (close < open)
            close = pattern.indexOf(u'}', open);
        if (close < 0)
            break;
        out += pattern.sliced(at, open - at);
        if (const auto text = tokens.text(pattern.sliced(open + 1, close - open - 1))) {
            out += *text;
            at = close + 1;
        } else {
            out += u'{';
            at = open + 1;
        }
    }
    out += pattern.sliced(at);
    return out;
}

QString withoutTrailingDots(QString text) {
    while (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

} // namespace

std::string keepingExtension(const QString& text, const std::string& fileName) {
    const NameParts own = splitName(fileName);
    const QString ownStem = QString::fromUtf8(own.stem);
    const QString extension = QString::fromUtf8(own.extension);
    if (extension.isEmpty()) {
        // "{name}.{ext}" must not add a dot on every run.
        const bool keepsDots = fileName.ends_with('.');
        const std::string bytes = (keepsDots ? text : withoutTrailingDots(text)).toStdString();
        const NameParts wanted = splitName(bytes);
        return legalName(QString::fromUtf8(wanted.stem), QString::fromUtf8(wanted.extension),
                         ownStem);
    }
    if (text.endsWith(u'.' + extension, Qt::CaseInsensitive)) {
        const qsizetype dot = text.size() - extension.size() - 1;
        return legalName(text.left(dot), text.mid(dot + 1), ownStem);
    }
    return legalName(text, extension, ownStem);
}

std::string expand(const QString& pattern, const RenameSource& source, DateFormats& dates) {
    const QString text = pattern.isEmpty() ? QString::fromUtf8(splitName(source.fileName).stem)
                                           : substituted(pattern, Tokens(source, dates));
    return keepingExtension(text, source.fileName);
}

} // namespace quillon

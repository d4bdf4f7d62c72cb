#include "model/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lines and columns count from 1; a column is a character, not a byte.
QString placeOf(const QByteArray& text, qsizetype offset) {
    const QByteArrayView before =
        QByteArrayView(text).first(std::clamp<qsizetype>(offset, 0, text.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    const qsizetype column = QString::fromUtf8(before.sliced(lineStart)).size() + 1;
    return u"line %1, column %2"_s.arg(QString::number(line), QString::number(column));
}

/// Where these errors are noticed the character at fault has been passed already.
bool isPastTheFault(QJsonParseError::ParseError error) {
    switch (error) {
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::MissingNameSeparator:
    case QJsonParseError::MissingObject:
    case QJsonParseError::MissingValueSeparator:
    case QJsonParseError::IllegalValue:
        return true;
    default:
        return false;
    }
}

QString reason(QJsonParseError error) {
    return error.error == QJsonParseError::IllegalUTF8String ? u"the text is not UTF-8"_s
                                                             : error.errorString();
}

} // namespace

Expected<QJsonValue> parseJson(const QByteArray& bytes) {
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return failure(ErrorKind::invalid, u"the text is UTF-16, and JSON is UTF-8"_s);
    const QByteArray text = bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes;
    if (text.trimmed().isEmpty())
        return failure(ErrorKind::invalid, u"the text is empty"_s);

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const int offset = error.offset - (isPastTheFault(error.error) ? 1 : 0);
        return failure(ErrorKind::invalid, placeOf(text, offset) + u": "_s + reason(error));
    }
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

} // namespace quillon

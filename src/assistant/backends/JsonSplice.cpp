#include "assistant/backends/JsonSplice.h"

#include <QJsonDocument>

namespace quillon {

QByteArray withRawEntry(const QJsonObject& object, const QByteArray& key, const QByteArray& value) {
    QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    text.chop(1);
    return text + (object.isEmpty() ? "\"" : ",\"") + key + "\":" + value + "}";
}

} // namespace quillon

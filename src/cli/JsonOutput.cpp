#include "cli/JsonOutput.h"

#include <QJsonArray>
#include <QJsonObject>

namespace quillon {
namespace {

constexpr std::size_t worthwhile = 1 << 16;

void write(JsonStream& json, std::ostream& out) {
    const QByteArray bytes = json.take();
    out.write(bytes.constData(), bytes.size());
}

} // namespace

void passOn(JsonStream& json, std::ostream& out) {
    if (json.size() >= worthwhile)
        write(json, out);
}

void finish(JsonStream& json, std::ostream& out) {
    json.breakLine();
    write(json, out);
}

void writeTexts(JsonStream& json, const QStringList& texts) {
    json.beginList();
    for (const QString& text : texts)
        json.text(text);
    json.endList();
}

void writeJson(JsonStream& json, const QJsonValue& value) {
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        json.beginObject();
        for (auto entry = object.begin(); entry != object.end(); ++entry)
            writeJson(json.key(entry.key().toStdString()), entry.value());
        json.endObject();
    } else if (value.isArray()) {
        json.beginList();
        for (const QJsonValue& item : value.toArray())
            writeJson(json, item);
        json.endList();
    } else if (value.isBool()) {
        json.truth(value.toBool());
    } else if (value.isDouble()) {
        json.real(value.toDouble());
    } else {
        json.text(value.toString());
    }
}

} // namespace quillon

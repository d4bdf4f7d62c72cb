#include "cli/JsonOutput.h"

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

} // namespace quillon

#include "assistant/KeyText.h"

#include "model/JsonReader.h"

namespace quillon {

QString keyText(std::uint64_t key) {
    return QString::number(key, 16).rightJustified(16, u'0');
}

QJsonArray keysToJson(const std::vector<std::uint64_t>& keys) {
    QJsonArray list;
    for (const std::uint64_t key : keys)
        list.append(keyText(key));
    return list;
}

Expected<std::uint64_t> keyFromJson(const JsonReader& json) {
    const auto text = json.read<QString>();
    if (!text)
        return std::unexpected(text.error());
    bool isKey = false;
    const std::uint64_t key = text->toULongLong(&isKey, 16);
    if (!isKey || text->size() != 16)
        return json.wrong(
            QStringLiteral("%1 is not 16 hexadecimal digits").arg(quotedForError(*text)));
    return key;
}

} // namespace quillon

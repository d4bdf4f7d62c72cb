#include "store/StableHash.h"

#include "model/Rule.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void dropIDs(QJsonObject& rule, QLatin1StringView listKey) {
    QJsonArray kept;
    for (const QJsonValue& value : rule.take(listKey).toArray()) {
        QJsonObject item = value.toObject();
        item.remove("id"_L1);
        kept.append(item);
    }
    rule.insert(listKey, kept);
}

} // namespace

std::uint64_t stableHash(QStringView text) {
    constexpr std::uint64_t offset = 0xCBF29CE484222325;
    constexpr std::uint64_t prime = 0x100000001B3;
    std::uint64_t hash = offset;
    for (const QChar unit : text) {
        hash = (hash ^ unit.cell()) * prime;
        hash = (hash ^ unit.row()) * prime;
    }
    return hash;
}

std::uint64_t stableHash(const Rule& rule) {
    QJsonObject content = toJson(rule);
    content.remove("name"_L1);
    content.remove("isEnabled"_L1);
    dropIDs(content, "conditions"_L1);
    dropIDs(content, "actions"_L1);
    return stableHash(QString::fromUtf8(QJsonDocument(content).toJson(QJsonDocument::Compact)));
}

} // namespace quillon

#pragma once

#include "model/Uuid.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QUuid>

#include <optional>
#include <vector>

namespace quillon {

/// Leaves the key out when the field is absent.
inline void insertIfPresent(QJsonObject& object, QLatin1StringView key,
                            const std::optional<QString>& field) {
    if (field)
        object.insert(key, *field);
}

inline void insertIfPresent(QJsonObject& object, QLatin1StringView key,
                            const std::optional<QUuid>& field) {
    if (field)
        object.insert(key, uuidText(*field));
}

/// A list of records, each through its own toJson.
template <typename T>
[[nodiscard]] QJsonArray jsonList(const std::vector<T>& records) {
    QJsonArray list;
    for (const T& record : records)
        list.append(toJson(record));
    return list;
}

} // namespace quillon

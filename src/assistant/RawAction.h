#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace quillon {

/// A change as a model proposes it, by names.
struct RawAction {
    QString type = {};
    QString folder = {};
    QString rule = {};
    QStringList ruleOrder = {};
    QString description = {};

    bool operator==(const RawAction&) const = default;
};

/// Whatever the value is: what is missing, too long or of another type is empty. At most 500 names.
[[nodiscard]] RawAction rawActionFromJson(const QJsonValue& value);

/// The JSON Schema of a list of them.
[[nodiscard]] QByteArray rawActionsSchema();

} // namespace quillon

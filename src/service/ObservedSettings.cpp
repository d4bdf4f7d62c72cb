#include "service/ObservedSettings.h"

namespace quillon {

std::optional<QString> ObservedSettings::value(const QString& key) const {
    return settings_.value(key);
}

Expected<void> ObservedSettings::setValue(const QString& key, const QString& value) {
    auto set = settings_.setValue(key, value);
    if (set)
        QMetaObject::invokeMethod(
            this, [this, key] { Q_EMIT changed(key); }, Qt::QueuedConnection);
    return set;
}

} // namespace quillon

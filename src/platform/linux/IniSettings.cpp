#include "platform/linux/IniSettings.h"

#include <QSettings>
#include <QStringList>

namespace quillon {
namespace {

/// A comma that a person typed without quotes makes a list of the value.
QString textOf(const QVariant& value) {
    return value.toStringList().join(QStringLiteral(", "));
}

} // namespace

IniSettings::IniSettings(const std::string& path) : path_(QString::fromStdString(path)) {}

std::optional<QString> IniSettings::value(const QString& key) const {
    // All objects for one path share what has been read of it.
    QSettings file(path_, QSettings::IniFormat);
    file.sync();
    return file.contains(key) ? std::optional(textOf(file.value(key))) : std::nullopt;
}

Expected<void> IniSettings::setValue(const QString& key, const QString& value) {
    QSettings file(path_, QSettings::IniFormat);
    const QVariant before = file.value(key);
    file.setValue(key, value);
    file.sync();
    if (file.status() == QSettings::NoError)
        return {};
    // Otherwise it would be read as if it had been saved.
    if (before.isValid())
        file.setValue(key, before);
    else
        file.remove(key);
    return failure(ErrorKind::io,
                   QStringLiteral("the settings can't be saved: check that %1 can be written and "
                                  "that its disk has room")
                       .arg(path_));
}

} // namespace quillon

#pragma once

#include "platform/Settings.h"

#include <QObject>

namespace quillon {

/// Settings that tell of every change, whoever in this process makes it. Any thread; the signal
/// comes on that of the object.
class ObservedSettings final : public QObject, public Settings {
    Q_OBJECT

public:
    /// Borrows the settings.
    explicit ObservedSettings(Settings& settings) : settings_(settings) {}

    [[nodiscard]] std::optional<QString> value(const QString& key) const override;
    [[nodiscard]] Expected<void> setValue(const QString& key, const QString& value) override;

Q_SIGNALS:
    void changed(const QString& key);

private:
    Settings& settings_;
};

} // namespace quillon

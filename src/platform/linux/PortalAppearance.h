#pragma once

#include "platform/DesktopAppearance.h"
#include "platform/linux/DesktopBus.h"

#include <QDBusVariant>

namespace quillon {

/// What the desktop's portal tells of how programs are to look, and of animations also what the
/// toolkits' own files say.
class PortalAppearance final : public QObject, public DesktopAppearance {
    Q_OBJECT

public:
    /// `configHome` is the folder of all programs' settings. Borrows the bus.
    PortalAppearance(DesktopBus& bus, const std::string& configHome);

    [[nodiscard]] Wishes wishes() const override { return wishes_; }
    void setListener(std::function<void()> changed) override { changed_ = std::move(changed); }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void read(const QDBusConnection& connection, const QString& group, const QString& key);

    Wishes wishes_;
    std::function<void()> changed_;
};

} // namespace quillon

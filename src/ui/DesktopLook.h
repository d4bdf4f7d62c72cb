#pragma once

#include "platform/DesktopAppearance.h"

#include <QColor>
#include <QFont>
#include <QObject>

namespace quillon {

/// What the theme takes from the desktop, and QML knows as `Desktop`. Follows the application's
/// palette and font, and the appearance that it is given.
class DesktopLook final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool isHighContrast READ isHighContrast NOTIFY changed)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY changed)
    Q_PROPERTY(bool hasButtonsAtStart READ hasButtonsAtStart NOTIFY changed)
    Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY changed)
    Q_PROPERTY(int bodySize READ bodySize NOTIFY changed)
    Q_PROPERTY(QString iconTheme READ iconTheme NOTIFY changed)

public:
    /// The appearance is borrowed; there may be none.
    explicit DesktopLook(DesktopAppearance* appearance = nullptr, QObject* parent = nullptr);
    ~DesktopLook() override;

    [[nodiscard]] bool isDark() const { return look_.isDark; }
    [[nodiscard]] bool isHighContrast() const { return look_.isHighContrast; }
    [[nodiscard]] bool reducesMotion() const { return look_.reducesMotion; }
    /// Of windows.
    [[nodiscard]] bool hasButtonsAtStart() const { return look_.hasButtonsAtStart; }
    /// Of an installed font.
    [[nodiscard]] QString fontFamily() const { return look_.fontFamily; }
    /// Of running text, in device-independent pixels.
    [[nodiscard]] int bodySize() const { return look_.bodySize; }
    [[nodiscard]] QString iconTheme() const { return look_.iconTheme; }

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Look {
        bool isDark = false;
        bool isHighContrast = false;
        bool reducesMotion = false;
        bool hasButtonsAtStart = false;
        QString fontFamily;
        int bodySize = 13;
        QString iconTheme;

        bool operator==(const Look&) const = default;
    };

    [[nodiscard]] Look current() const;
    void update();

    DesktopAppearance* appearance_;
    Look look_;
};

/// From 1 for the same colour to 21 for black and white.
[[nodiscard]] double contrastRatio(const QColor& one, const QColor& other);

} // namespace quillon

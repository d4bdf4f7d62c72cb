#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

namespace quillon {

/// A square picture: for each pixel alpha, red, green and blue, row by row from the top, not
/// multiplied with alpha.
struct TrayPicture {
    int size = 0;
    QByteArray pixels;

    bool operator==(const TrayPicture&) const = default;
};

struct TrayLook {
    std::vector<TrayPicture> pictures; ///< the same in several sizes
    QString toolTip;
    bool needsAttention = false;
    bool isRightToLeft = false; ///< its menu; stays as it was at the start

    bool operator==(const TrayLook&) const = default;
};

struct TrayMenuItem {
    QString label; ///< empty: a line between others
    std::function<void()> chosen = {};
};

/// Our item among the desktop's status icons. On the event loop's thread; never waits.
class TrayItem {
public:
    /// Whether a desktop shows it.
    enum class Place { unknown, shown, nowhere };

    /// What a person does with it. Points are in the screen's own pixels; (0, 0) where the desktop
    /// doesn't say.
    struct Handlers {
        std::function<void(int x, int y)> activated;
        std::function<void()> placeChanged;
    };

    virtual ~TrayItem() = default;

    /// To be called once.
    virtual void start(const TrayLook& look, std::vector<TrayMenuItem> menu, Handlers handlers) = 0;
    virtual void setLook(const TrayLook& look) = 0;
    virtual void setMenu(std::vector<TrayMenuItem> menu) = 0;
    [[nodiscard]] virtual Place place() const = 0;
};

} // namespace quillon

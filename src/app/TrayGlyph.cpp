#include "app/TrayGlyph.h"

#include "ui/icons/IconPainter.h"

#include <QPainter>
#include <QStringList>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr std::array sizes{16, 22, 24, 32, 48, 64};
constexpr QRgb amber = 0xffe8862e;
constexpr QRgb lightText = 0xfff0f1f1;
constexpr QRgb darkText = 0xff1c1e20;
/// Of the dot, where the picture is 22 wide.
constexpr qreal dotSize = 5;
constexpr qreal usualSize = 22;
constexpr std::array darkPanels{"GNOME", "Unity", "XFCE", "X-Cinnamon", "Budgie", "Pantheon"};

TrayPicture pictureOf(QImage image) {
    image = image.convertToFormat(QImage::Format_ARGB32);
    TrayPicture picture{.size = image.width(), .pixels = {}};
    picture.pixels.reserve(image.width() * image.height() * 4);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const quint32 pixel = qToBigEndian(quint32(image.pixel(x, y)));
            picture.pixels.append(reinterpret_cast<const char*>(&pixel), sizeof pixel);
        }
    return picture;
}

} // namespace

QColor panelTextColor(const QString& desktopNames, bool isDark) {
    const QStringList names = desktopNames.split(u':');
    const bool hasDarkPanel = std::ranges::any_of(darkPanels, [&](const char* name) {
        return names.contains(QLatin1String(name), Qt::CaseInsensitive);
    });
    return QColor::fromRgb(isDark || hasDarkPanel ? lightText : darkText);
}

std::vector<TrayPicture> trayGlyph(const QColor& color, bool needsAttention) {
    std::vector<TrayPicture> pictures;
    for (const int size : sizes) {
        const QColor ink = needsAttention ? QColor::fromRgb(amber) : color;
        QImage image = paintGlyph(QStringLiteral("guard"), size, ink)
                           .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (needsAttention) {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            const qreal dot = std::max(dotSize, dotSize * size / usualSize);
            painter.drawEllipse(QRectF(size - dot, 0, dot, dot));
        }
        pictures.push_back(pictureOf(std::move(image)));
    }
    return pictures;
}

} // namespace quillon

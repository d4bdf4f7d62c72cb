#include "ui/icons/IconPainter.h"

#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct OtherName {
    QLatin1StringView name;
    QLatin1StringView standard;
};

/// The standard name to ask for where a theme lacks the first.
constexpr std::array otherNames{
    OtherName{"view-visible"_L1, "document-print-preview"_L1},
    OtherName{"edit-clear-all"_L1, "edit-clear"_L1},
    OtherName{"view-list-icons"_L1, "view-restore"_L1},
    OtherName{"clock"_L1, "appointment-new"_L1},
    OtherName{"configure"_L1, "preferences-system"_L1},
    OtherName{"view-list-tree"_L1, "folder"_L1},
    OtherName{"document-import"_L1, "document-open"_L1},
    OtherName{"document-export"_L1, "document-save-as"_L1},
    OtherName{"document-edit"_L1, "document-properties"_L1},
    OtherName{"document-open-folder"_L1, "folder-open"_L1},
    OtherName{"view-history"_L1, "document-open-recent"_L1},
    OtherName{"search"_L1, "edit-find"_L1},
    OtherName{"document-send"_L1, "mail-send"_L1},
    OtherName{"help-about"_L1, "dialog-information"_L1},
    OtherName{"lock"_L1, "changes-prevent"_L1},
};

QStringList namesFor(const QString& name) {
    QStringList names{name};
    for (const OtherName& other : otherNames) {
        if (other.name == name)
            names.append(other.standard);
    }
    return names;
}

/// Whether one colour will still show what it is: it is made of lines, or had one colour before.
bool survivesOneColor(const QImage& image) {
    constexpr int opaque = 200;
    constexpr int apart = 48;
    constexpr double solid = 0.35;
    std::optional<QRgb> first;
    bool isColorful = false;
    int filled = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < opaque)
                continue;
            ++filled;
            if (!first)
                first = pixel;
            isColorful |= std::abs(qRed(pixel) - qRed(*first)) > apart ||
                          std::abs(qGreen(pixel) - qGreen(*first)) > apart ||
                          std::abs(qBlue(pixel) - qBlue(*first)) > apart;
        }
    }
    return filled > 0 && (!isColorful || filled < solid * image.width() * image.height());
}

QImage blank(int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

std::optional<QImage> fromSvg(const QString& path, int pixels) {
    if (!QFile::exists(path))
        return std::nullopt;
    QSvgRenderer renderer(path);
    QImage image = blank(pixels);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

std::optional<QImage> fromTheme(const QString& name, int size, int pixels) {
    if (!QIcon::hasThemeIcon(name))
        return std::nullopt;
    const double ratio = double(pixels) / size;
    QImage drawn = QIcon::fromTheme(name).pixmap(QSize(size, size), ratio).toImage();
    drawn.setDevicePixelRatio(1);
    QImage image = blank(pixels);
    QPainter painter(&image);
    const QSize fitted = drawn.size().boundedTo(image.size());
    painter.drawImage(QRect(QPoint((pixels - fitted.width()) / 2, (pixels - fitted.height()) / 2),
                            drawn.size().scaled(fitted, Qt::KeepAspectRatio)),
                      drawn);
    return image;
}

std::optional<QImage> bundled(const QString& name, int size, int pixels) {
    const QString path = u":/icons/%1/%2.svg"_s;
    if (size > 16) {
        const auto large = fromSvg(path.arg(22).arg(name), pixels);
        if (large && survivesOneColor(*large))
            return large;
    }
    return fromSvg(path.arg(16).arg(name), pixels);
}

QImage dot(int pixels) {
    QImage image = blank(pixels);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QPointF(pixels / 2.0, pixels / 2.0), pixels / 6.0, pixels / 6.0);
    return image;
}

QImage shapeOf(const QString& name, int size, int pixels) {
    const QStringList names = namesFor(name);
    for (const QString& candidate : names) {
        for (const QString& form : {candidate, candidate + u"-symbolic"_s}) {
            const auto image = fromTheme(form, size, pixels);
            if (image && survivesOneColor(*image))
                return *image;
        }
    }
    for (const QString& candidate : names) {
        if (const auto image = bundled(candidate, size, pixels))
            return *image;
    }
    return dot(pixels);
}

QImage inColor(QImage shape, const QColor& color) {
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), color);
    return shape;
}

} // namespace

QImage paintIcon(const QString& name, int size, int pixels, const QColor& color) {
    return inColor(shapeOf(name, size, pixels), color);
}

QImage paintGlyph(const QString& name, int pixels, const QColor& color) {
    return inColor(fromSvg(u":/glyphs/%1.svg"_s.arg(name), pixels).value_or(dot(pixels)), color);
}

} // namespace quillon

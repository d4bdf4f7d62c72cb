#include "ui/icons/ShadowPainter.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace quillon {

namespace {

struct Cast {
    int drop;
    int blur;
    double light;
    double dark;
};

struct Elevation {
    int reach;
    std::array<Cast, 2> casts;
};

constexpr std::array elevations{
    Elevation{4, {{{1, 2, 0.05, 0.25}, {0, 0, 0, 0}}}},
    Elevation{40, {{{8, 28, 0.16, 0.50}, {1, 3, 0.10, 0.40}}}},
    Elevation{96, {{{24, 64, 0.24, 0.55}, {4, 12, 0.10, 0.35}}}},
};

const Elevation& elevationOf(int number) {
    return elevations[std::size_t(std::clamp(number, 1, int(elevations.size()))) - 1];
}

using Row = std::vector<float>;

/// One pass of a box, `reach` to either side.
void average(Row& row, Row& scratch, int reach) {
    const int count = int(row.size());
    const auto at = [&](int index) {
        return index < 0 || index >= count ? 0.0F : row[std::size_t(index)];
    };
    float sum = 0;
    for (int index = -reach; index <= reach; ++index)
        sum += at(index);
    for (int index = 0; index < count; ++index) {
        scratch[std::size_t(index)] = sum / float(2 * reach + 1);
        sum += at(index + reach + 1) - at(index - reach);
    }
    row.swap(scratch);
}

/// Three boxes come as close to a bell as the eye can tell. The deviation is half the blur.
void blurRow(Row& row, Row& scratch, int blur) {
    const double deviation = blur / 2.0;
    const int reach =
        std::max(1, int(std::lround((std::sqrt(4 * deviation * deviation + 1) - 1) / 2)));
    for (int pass = 0; pass < 3; ++pass)
        average(row, scratch, reach);
}

QImage blurred(const QImage& mask, int blur) {
    // What is as soft as this looks the same from a quarter of the pixels, and takes a tenth of the
    // time.
    constexpr int soft = 12;
    constexpr int shrink = 4;
    if (blur >= soft) {
        const QImage small =
            mask.scaled(mask.size() / shrink, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return blurred(small.convertToFormat(QImage::Format_Alpha8), blur / shrink)
            .scaled(mask.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    const auto width = std::size_t(mask.width());
    const auto height = std::size_t(mask.height());
    std::vector<Row> rows;
    Row scratch;
    for (std::size_t y = 0; y < height; ++y) {
        const uchar* const line = mask.constScanLine(int(y));
        Row& row = rows.emplace_back(line, line + width);
        scratch.resize(width);
        blurRow(row, scratch, blur);
    }
    QImage result(mask.size(), QImage::Format_Alpha8);
    Row column;
    for (std::size_t x = 0; x < width; ++x) {
        column.clear();
        for (const Row& row : rows)
            column.push_back(row[x]);
        scratch.resize(height);
        blurRow(column, scratch, blur);
        for (std::size_t y = 0; y < height; ++y)
            result.scanLine(int(y))[x] = uchar(std::lround(column[y]));
    }
    return result;
}

} // namespace

int shadowReach(int elevation) {
    return elevationOf(elevation).reach;
}

QImage paintShadow(int elevation, int radius, QSize surface, bool isDark) {
    const Elevation& described = elevationOf(elevation);
    const int reach = described.reach;
    QImage image(surface + QSize(2 * reach, 2 * reach), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (const Cast& cast : described.casts) {
        if (cast.blur == 0)
            continue;
        QImage mask(image.size(), QImage::Format_Alpha8);
        mask.fill(Qt::transparent);
        QPainter outline(&mask);
        outline.setRenderHint(QPainter::Antialiasing);
        outline.setPen(Qt::NoPen);
        outline.setBrush(Qt::black);
        outline.drawRoundedRect(QRect(QPoint(reach, reach + cast.drop), surface), radius, radius);
        outline.end();
        QImage shade(image.size(), QImage::Format_ARGB32_Premultiplied);
        shade.fill(isDark ? QColor(Qt::black) : QColor(0x1c, 0x1e, 0x20));
        QPainter cut(&shade);
        cut.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        cut.drawImage(0, 0, blurred(mask, cast.blur));
        cut.end();
        painter.setOpacity(isDark ? cast.dark : cast.light);
        painter.drawImage(0, 0, shade);
    }
    return image;
}

} // namespace quillon

#include "assistant/ByteCount.h"

#include <array>
#include <cmath>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Unit {
    QStringView name;
    double bytes;
    int decimals;
};

constexpr std::array units{Unit{u"KB", 1e3, 0}, Unit{u"MB", 1e6, 1}, Unit{u"GB", 1e9, 2},
                           Unit{u"TB", 1e12, 2}};

double rounded(double value, int decimals) {
    const double scale = std::pow(10, decimals);
    return std::round(value * scale) / scale;
}

} // namespace

QString byteCount(std::uint64_t bytes) {
    if (bytes < 1000)
        return QString::number(bytes) + (bytes == 1 ? u" byte"_s : u" bytes"_s);
    for (const Unit& unit : units) {
        const double value = rounded(double(bytes) / unit.bytes, unit.decimals);
        if (value < 1000 || unit.bytes == units.back().bytes)
            return QString::number(value, 'g', 10) + u' ' + unit.name.toString();
    }
    return {};
}

} // namespace quillon

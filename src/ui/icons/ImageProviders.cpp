#include "ui/icons/ImageProviders.h"

#include "ui/icons/IconPainter.h"
#include "ui/icons/ShadowPainter.h"

#include <QQmlEngine>
#include <QQuickImageProvider>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Paint = QImage (*)(const QStringList& words, int pixels);

/// The engine keeps what it was given, by its address.
class PaintingProvider final : public QQuickImageProvider {
public:
    explicit PaintingProvider(Paint paint)
        : QQuickImageProvider(QQuickImageProvider::Image), paint_(paint) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override {
        QImage image = paint_(id.split(u'/'), requestedSize.width());
        if (size)
            *size = image.size();
        return image;
    }

private:
    Paint paint_;
};

int sizeOf(const QStringList& words) {
    const int size = words.value(1).toInt();
    return size > 0 ? size : 16;
}

QColor colorOf(const QStringList& words) {
    const QColor color(u"#"_s + words.value(2));
    return color.isValid() ? color : QColor(Qt::black);
}

QImage icon(const QStringList& words, int pixels) {
    const int size = sizeOf(words);
    return paintIcon(words.value(0), size, pixels > 0 ? pixels : size, colorOf(words));
}

QImage glyph(const QStringList& words, int pixels) {
    return paintGlyph(words.value(0), pixels > 0 ? pixels : sizeOf(words), colorOf(words));
}

QImage shadow(const QStringList& words, int) {
    return paintShadow(words.value(0).toInt(), words.value(1).toInt(),
                       QSize(words.value(2).toInt(), words.value(3).toInt()),
                       words.value(4) == u"dark");
}

} // namespace

void addImageProviders(QQmlEngine& engine) {
    engine.addImageProvider(u"icon"_s, new PaintingProvider(icon));
    engine.addImageProvider(u"glyph"_s, new PaintingProvider(glyph));
    engine.addImageProvider(u"shadow"_s, new PaintingProvider(shadow));
}

} // namespace quillon

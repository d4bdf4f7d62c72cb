#include "ui/DesktopLook.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Only palettes made for the purpose go further: pure black and white, or nearly.
constexpr double highContrast = 20;
constexpr int defaultBodySize = 13;
constexpr double pixelsPerPoint = 96.0 / 72;
constexpr double smallestPoints = 9;
constexpr double largestPoints = 14.5;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

int bodySizeOf(const QFont& font) {
    if (font.pointSizeF() <= 0)
        return std::clamp(font.pixelSize(), int(smallestPoints * pixelsPerPoint),
                          int(largestPoints * pixelsPerPoint));
    return int(
        std::lround(std::clamp(font.pointSizeF(), smallestPoints, largestPoints) * pixelsPerPoint));
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

DesktopLook::DesktopLook(DesktopAppearance* appearance, QObject* parent)
    : QObject(parent), appearance_(appearance) {
    look_ = current();
    qGuiApp->installEventFilter(this);
    if (appearance_)
        appearance_->setListener([this] { update(); });
}

DesktopLook::~DesktopLook() {
    if (appearance_)
        appearance_->setListener({});
}

bool DesktopLook::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    // Of another icon theme, only windows are told.
    if (type == QEvent::ThemeChange ||
        (watched == qGuiApp &&
         (type == QEvent::ApplicationPaletteChange || type == QEvent::ApplicationFontChange)))
        update();
    return QObject::eventFilter(watched, event);
}

DesktopLook::Look DesktopLook::current() const {
    const auto wishes = appearance_ ? appearance_->wishes() : DesktopAppearance::Wishes();
    const QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const QFont font = QGuiApplication::font();
    const bool namesFont = QFontDatabase::hasFamily(font.family());
    return {.isDark = wishes.prefersDark || luminance(window) < luminance(text),
            .isHighContrast =
                wishes.prefersHighContrast || contrastRatio(window, text) >= highContrast,
            .reducesMotion = wishes.reducesMotion,
            .hasButtonsAtStart = wishes.hasButtonsAtStart,
            .fontFamily = namesFont ? font.family() : u"Inter"_s,
            .bodySize = namesFont ? bodySizeOf(font) : defaultBodySize,
            .iconTheme = QIcon::themeName()};
}

void DesktopLook::update() {
    Look look = current();
    if (look == look_)
        return;
    look_ = std::move(look);
    Q_EMIT changed();
}

} // namespace quillon

#include "platform/linux/StatusNotifierObject.h"

#include <QDBusMetaType>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

// The bus wants back the very argument that it gave.
// NOLINTBEGIN(bugprone-return-const-ref-from-parameter)
QDBusArgument& operator<<(QDBusArgument& argument, const BusPicture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, BusPicture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pictures << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, BusToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pictures >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}
// NOLINTEND(bugprone-return-const-ref-from-parameter)

void StatusNotifierObject::registerTypes() {
    qDBusRegisterMetaType<BusPicture>();
    qDBusRegisterMetaType<QList<BusPicture>>();
    qDBusRegisterMetaType<BusToolTip>();
}

void StatusNotifierObject::setLook(const TrayLook& look) {
    const TrayLook before = std::exchange(look_, look);
    if (before.pictures != look.pictures) {
        Q_EMIT NewIcon();
        Q_EMIT NewAttentionIcon();
    }
    if (before.toolTip != look.toolTip)
        Q_EMIT NewToolTip();
    if (before.needsAttention != look.needsAttention)
        Q_EMIT NewStatus(status());
}

QString StatusNotifierObject::status() const {
    return look_.needsAttention ? u"NeedsAttention"_s : u"Active"_s;
}

QList<BusPicture> StatusNotifierObject::pictures() const {
    QList<BusPicture> pictures;
    for (const TrayPicture& picture : look_.pictures)
        pictures.append({.width = picture.size, .height = picture.size, .pixels = picture.pixels});
    return pictures;
}

BusToolTip StatusNotifierObject::toolTip() const {
    return {.iconName = {}, .pictures = {}, .title = title(), .text = look_.toolTip};
}

void StatusNotifierObject::Activate(int x, int y) {
    if (onActivated)
        onActivated(x, y);
}

void StatusNotifierObject::SecondaryActivate(int x, int y) {
    Activate(x, y);
}

/// Only asked for by those who don't show the menu themselves.
void StatusNotifierObject::ContextMenu(int x, int y) {
    Activate(x, y);
}

void StatusNotifierObject::Scroll(int /*delta*/, const QString& /*orientation*/) {}

} // namespace quillon

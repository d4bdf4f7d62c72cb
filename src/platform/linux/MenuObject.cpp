#include "platform/linux/MenuObject.h"

#include <QDBusMetaType>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

// The bus wants back the very argument that it gave.
// NOLINTBEGIN(bugprone-return-const-ref-from-parameter)
QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuEntry& entry) {
    argument.beginStructure();
    argument << entry.id << entry.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuEntry& entry) {
    argument.beginStructure();
    argument >> entry.id >> entry.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuLayout& layout) {
    argument.beginStructure();
    argument << layout.entry.id << layout.entry.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const BusMenuLayout& below : layout.below)
        argument << QDBusVariant(QVariant::fromValue(below));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuLayout& layout) {
    argument.beginStructure();
    argument >> layout.entry.id >> layout.entry.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant below;
        argument >> below;
        layout.below.append(qdbus_cast<BusMenuLayout>(below.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const BusMenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.time;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, BusMenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.time;
    argument.endStructure();
    return argument;
}
// NOLINTEND(bugprone-return-const-ref-from-parameter)

void MenuObject::registerTypes() {
    qDBusRegisterMetaType<BusMenuEvent>();
    qDBusRegisterMetaType<QList<BusMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
    qDBusRegisterMetaType<BusMenuEntry>();
    qDBusRegisterMetaType<QList<BusMenuEntry>>();
    qDBusRegisterMetaType<BusMenuLayout>();
}

void MenuObject::setItems(std::vector<TrayMenuItem> items) {
    items_ = std::move(items);
    Q_EMIT LayoutUpdated(++revision_, 0);
}

QVariantMap MenuObject::properties(int id) const {
    if (id == 0)
        return {{u"children-display"_s, u"submenu"_s}};
    if (id < 0 || std::size_t(id) > items_.size())
        return {};
    const QString& label = items_[std::size_t(id) - 1].label;
    if (label.isEmpty())
        return {{u"type"_s, u"separator"_s}};
    // An underline stands for the key of the letter after it.
    return {{u"label"_s, QString(label).replace(u'_', u"__"_s)}};
}

uint MenuObject::GetLayout(int parent, int depth, const QStringList& /*names*/,
                           BusMenuLayout& layout) {
    layout.entry = {.id = parent, .properties = properties(parent)};
    if (parent == 0 && depth != 0)
        for (int id = 1; std::size_t(id) <= items_.size(); ++id)
            layout.below.append({.entry = {.id = id, .properties = properties(id)}, .below = {}});
    return revision_;
}

QList<BusMenuEntry> MenuObject::GetGroupProperties(const QList<int>& ids,
                                                   const QStringList& /*names*/) {
    QList<BusMenuEntry> entries;
    for (const int id : ids)
        entries.append({.id = id, .properties = properties(id)});
    return entries;
}

QDBusVariant MenuObject::GetProperty(int id, const QString& name) {
    return QDBusVariant(properties(id).value(name, QString()));
}

void MenuObject::Event(int id, const QString& event, const QDBusVariant& /*data*/, uint /*time*/) {
    if (event != u"clicked" || id <= 0 || std::size_t(id) > items_.size())
        return;
    // It may change the menu.
    if (const auto chosen = items_[std::size_t(id) - 1].chosen)
        chosen();
}

/// Returns those that there are no entries for: none that would matter.
QList<int> MenuObject::EventGroup(const QList<BusMenuEvent>& events) {
    for (const BusMenuEvent& event : events)
        Event(event.id, event.name, event.data, event.time);
    return {};
}

/// Nothing changes before it is shown.
bool MenuObject::AboutToShow(int /*id*/) {
    return false;
}

QList<int> MenuObject::AboutToShowGroup(const QList<int>& /*ids*/, QList<int>& /*unknown*/) {
    return {};
}

} // namespace quillon

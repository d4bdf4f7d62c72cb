#include "ui/editor/FolderChoices.h"

#include "model/PathText.h"
#include "ui/FolderLook.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QVariantList FolderChoices::menuWithout(const QUuid& folderID) const {
    QVariantList menu;
    for (std::size_t i = 0; i < folders_.size(); ++i)
        if (folders_[i].id != folderID)
            menu.append(look(i));
    return menu;
}

QVariantMap FolderChoices::look(const QString& destination) const {
    if (destination.isEmpty())
        return {};
    const QString path = full(destination);
    const auto found = std::ranges::find(folders_, path, &WatchedFolder::path);
    if (found != folders_.end())
        return look(std::size_t(found - folders_.begin()));
    return {{u"name"_s, lastPathComponent(path)},
            {u"path"_s, destination},
            {u"place"_s, place(path)},
            {u"tint"_s, -1},
            {u"symbol"_s, u"folder"_s}};
}

QVariantMap FolderChoices::look(const QUuid& folderID) const {
    const auto found = std::ranges::find(folders_, folderID, &WatchedFolder::id);
    return found == folders_.end() ? QVariantMap() : look(std::size_t(found - folders_.begin()));
}

QString FolderChoices::full(const QString& destination) const {
    QString path = destination;
    if (path == u"~" || path.startsWith(u"~/"_s))
        path.replace(0, 1, QString::fromStdString(home_));
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

QVariantMap FolderChoices::look(std::size_t index) const {
    const WatchedFolder& folder = folders_[index];
    const FolderLook look = lookOf(folder, index);
    return {{u"name"_s, folder.name()},
            {u"path"_s, folder.path},
            {u"place"_s, place(folder.path)},
            {u"tint"_s, look.tint},
            {u"symbol"_s, look.symbol}};
}

QString FolderChoices::place(const QString& path) const {
    const QString home = QString::fromStdString(home_);
    if (path == home)
        return u"~"_s;
    return path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

} // namespace quillon

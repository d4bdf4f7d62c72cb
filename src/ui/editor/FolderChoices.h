#pragma once

#include "model/WatchedFolder.h"

#include <QVariantList>
#include <QVariantMap>

#include <string>
#include <vector>

namespace quillon {

/// The folders that files may be sent to, as the editor shows them.
class FolderChoices {
public:
    FolderChoices() = default;
    FolderChoices(std::vector<WatchedFolder> folders, std::string home)
        : folders_(std::move(folders)), home_(std::move(home)) {}

    /// Every watched folder but that one: name, path, place (the path as people read it), tint,
    /// symbol.
    [[nodiscard]] QVariantList menuWithout(const QUuid& folderID) const;

    /// The same of any folder that a rule names; empty for none. One that isn't watched has no
    /// tint.
    [[nodiscard]] QVariantMap look(const QString& destination) const;
    [[nodiscard]] QVariantMap look(const QUuid& folderID) const;

    /// The path without "~".
    [[nodiscard]] QString full(const QString& destination) const;

    /// A path as people read it, the home folder as "~".
    [[nodiscard]] QString place(const QString& path) const;

private:
    [[nodiscard]] QVariantMap look(std::size_t index) const;
    std::vector<WatchedFolder> folders_;
    std::string home_;
};

} // namespace quillon

#include "support/AttributeFolder.h"

#include <QDir>
#include <QFile>

#include <array>
#include <filesystem>
#include <sys/xattr.h>

namespace quillon::testing {

AttributeFolder::AttributeFolder() {
    for (const QString& place :
         {QDir::tempPath(), QStringLiteral("/var/tmp"), QDir::currentPath()}) {
        auto folder = std::make_unique<QTemporaryDir>(place + QStringLiteral("/quillon-XXXXXX"));
        if (folder->isValid() && setAttribute(folder->path().toStdString(), "user.probe", "1")) {
            folder_ = std::move(folder);
            return;
        }
    }
}

std::string AttributeFolder::file(const std::string& name) const {
    const QString path = folder_->filePath(QString::fromStdString(name));
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? path.toStdString() : std::string();
}

std::string AttributeFolder::link(const std::string& name, const std::string& target) const {
    const std::string path = folder_->filePath(QString::fromStdString(name)).toStdString();
    std::filesystem::create_symlink(target, path);
    return path;
}

bool setAttribute(const std::string& path, const char* name, const QByteArray& value) {
    return ::lsetxattr(path.c_str(), name, value.constData(),
                       static_cast<std::size_t>(value.size()), 0) == 0;
}

std::optional<QByteArray> attribute(const std::string& path, const char* name) {
    std::array<char, 65536> buffer;
    const ssize_t size = ::lgetxattr(path.c_str(), name, buffer.data(), buffer.size());
    return size < 0 ? std::nullopt : std::optional(QByteArray(buffer.data(), size));
}

} // namespace quillon::testing

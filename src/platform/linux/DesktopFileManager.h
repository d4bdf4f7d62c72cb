#pragma once

#include "platform/FileManager.h"
#include "platform/linux/DesktopBus.h"

#include <QStringList>

namespace quillon {

/// The user's file manager over the message bus; where it isn't there the desktop's portal, and
/// after that the command that opens a folder.
class DesktopFileManager final : public FileManager {
public:
    /// Starts a program with arguments and doesn't wait for it.
    using Start = std::function<void(const QString& program, const QStringList& arguments)>;

    /// Borrows the bus.
    explicit DesktopFileManager(DesktopBus& bus, Start start = startDetached)
        : bus_(bus), start_(std::move(start)) {}

    void reveal(const std::string& path) override;
    void openAddress(const QString& address) override;

private:
    static void startDetached(const QString& program, const QStringList& arguments);

    void openFolderOf(const std::string& path, const std::optional<QDBusConnection>& connection);

    DesktopBus& bus_;
    Start start_;
};

} // namespace quillon

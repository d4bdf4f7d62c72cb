#pragma once

#include "platform/FileChooser.h"
#include "platform/linux/DesktopBus.h"
#include "platform/linux/PortalRequest.h"

namespace quillon {

/// The desktop's own file dialogue through its portal; where there is none, the fallback's.
class PortalFileChooser final : public FileChooser {
public:
    /// The window that the dialogue belongs to, in the portal's words; empty for none.
    using ParentWindow = std::function<QString()>;

    /// Borrows both.
    PortalFileChooser(DesktopBus& bus, FileChooser& fallback, ParentWindow parentWindow)
        : bus_(bus), fallback_(fallback), parentWindow_(std::move(parentWindow)) {}

    void chooseFolder(const QString& title, const std::string& start, Chosen chosen) override;
    void chooseFile(const QString& title, const std::string& start, Chosen chosen) override;
    void chooseNewFile(const QString& title, const QString& suggestedName, Chosen chosen) override;

private:
    void ask(const QString& method, const QString& title, const QVariantMap& options,
             const Chosen& chosen, const std::function<void()>& otherwise);

    DesktopBus& bus_;
    FileChooser& fallback_;
    ParentWindow parentWindow_;
};

} // namespace quillon

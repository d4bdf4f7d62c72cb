#pragma once

#include "platform/FileSystem.h"
#include "platform/LoginItem.h"
#include "platform/Storage.h"

namespace quillon {

/// The user's autostart entry, which desktops start at login and show in their settings.
class AutostartEntry final : public LoginItem {
public:
    /// `configHome` is the folder of all programs' settings, `program` the path of the one to be
    /// started. Borrows the first two.
    AutostartEntry(Storage& storage, FileSystem& fileSystem, const std::string& configHome,
                   std::string program);

    /// Another program may have switched it off within the entry.
    [[nodiscard]] bool isOn() const override;
    [[nodiscard]] Expected<void> setOn(bool on) override;

private:
    Storage& storage_;
    FileSystem& fileSystem_;
    std::string folder_;
    std::string path_;
    std::string program_;
};

} // namespace quillon

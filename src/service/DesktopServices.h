#pragma once

#include "platform/DesktopAppearance.h"
#include "platform/FileChooser.h"
#include "platform/FileManager.h"
#include "platform/LoginItem.h"
#include "platform/TrayItem.h"
#include "platform/WindowHints.h"
#include "service/Services.h"

#include <functional>
#include <memory>
#include <string>

namespace quillon {

/// What only a process with windows needs of the desktop. On the event loop's thread.
class DesktopServices {
public:
    struct Options {
        Services& services;
        FileChooser& fallbackChooser;          ///< where the desktop has none of its own
        std::function<QString()> parentWindow; ///< of a dialogue, in the portal's words
        std::string program;                   ///< what is started at login
    };

    explicit DesktopServices(const Options& options);
    ~DesktopServices();

    [[nodiscard]] DesktopAppearance& appearance();
    [[nodiscard]] FileChooser& fileChooser();
    [[nodiscard]] FileManager& fileManager();
    [[nodiscard]] LoginItem& loginItem();
    [[nodiscard]] TrayItem& trayItem();
    [[nodiscard]] WindowHints& windowHints();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon

#include "service/DesktopServices.h"

#include "platform/FileNames.h"
#include "platform/linux/AutostartEntry.h"
#include "platform/linux/DesktopBus.h"
#include "platform/linux/DesktopFileManager.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/PortalFileChooser.h"
#include "platform/linux/StatusNotifierTray.h"
#include "platform/linux/X11WindowHints.h"

namespace quillon {
namespace {

std::string configHome(const Services& services) {
    return std::string(parentPath(services.platform().folders.config));
}

} // namespace

struct DesktopServices::State {
    DesktopBus bus;
    PortalAppearance appearance;
    PortalFileChooser chooser;
    DesktopFileManager fileManager{bus};
    AutostartEntry autostart;
    StatusNotifierTray tray{bus};
    X11WindowHints hints;

    explicit State(const Options& options)
        : appearance(bus, configHome(options.services))
        , chooser(bus, options.fallbackChooser, options.parentWindow)
        , autostart(options.services.storage(), options.services.platform().fileSystem,
                    configHome(options.services), options.program) {}
};

DesktopServices::DesktopServices(const Options& options)
    : state_(std::make_unique<State>(options)) {}
DesktopServices::~DesktopServices() = default;

DesktopAppearance& DesktopServices::appearance() {
    return state_->appearance;
}

FileChooser& DesktopServices::fileChooser() {
    return state_->chooser;
}

FileManager& DesktopServices::fileManager() {
    return state_->fileManager;
}

LoginItem& DesktopServices::loginItem() {
    return state_->autostart;
}

TrayItem& DesktopServices::trayItem() {
    return state_->tray;
}

WindowHints& DesktopServices::windowHints() {
    return state_->hints;
}

} // namespace quillon

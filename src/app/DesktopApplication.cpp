#include "app/DesktopApplication.h"

#include "app/QmlScene.h"
#include "service/Services.h"
#include "service/ThisProcess.h"

#include <QApplication>

namespace quillon {

int runDesktopApplication(int argc, char** argv) {
    QApplication application(argc, argv);
    Services services(currentUserFolders());
    const auto store = services.startInstance();
    if (!store)
        return 1;
    return 0;
}

} // namespace quillon

#include "platform/linux/NextcloudFiles.h"

#include "platform/linux/ExtendedAttributes.h"

namespace quillon {

bool NextcloudFiles::isOnlineOnly(const std::string& path) const {
    if (path.ends_with(".nextcloud")) {
        return true;
    }
    const auto command = readAttribute(path, "user.nextcloud.hydrate_exec");
    return command && *command;
}

} // namespace quillon

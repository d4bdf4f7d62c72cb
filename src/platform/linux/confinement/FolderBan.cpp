#include "platform/linux/confinement/FolderBan.h"

#include "platform/linux/Descriptor.h"
#include "platform/linux/SystemError.h"

#include <linux/landlock.h>
#include <sys/syscall.h>

namespace quillon {

Expected<void> banFolders() {
    // All rights that the first version of it knows; what no rule allows is forbidden.
    const landlock_ruleset_attr everything{.handled_access_fs =
                                               (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1};
    const Descriptor rules(static_cast<int>(
        ::syscall(SYS_landlock_create_ruleset, &everything, sizeof everything, 0)));
    if (!rules.isOpen()) {
        return errno == ENOSYS || errno == EOPNOTSUPP ? Expected<void>() : systemFailure();
    }
    return ::syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0 ? Expected<void>()
                                                                      : systemFailure();
}

} // namespace quillon

#include "platform/linux/ProcessEnd.h"

#include "platform/linux/SystemError.h"

#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillon {

Expected<ProcessEnd> ProcessEnd::of(int process) {
    Descriptor descriptor(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    if (descriptor.isOpen())
        return ProcessEnd(std::move(descriptor));
    const int error = errno;
    if (error == ESRCH)
        return failure(ErrorKind::notFound, QStringLiteral("it has ended"));
    return systemFailure(error);
}

int thisProcess() {
    return ::getpid();
}

} // namespace quillon

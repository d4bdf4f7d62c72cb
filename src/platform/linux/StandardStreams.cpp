#include "platform/linux/StandardStreams.h"

#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace quillon {

StandardStreams openStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF)
            // The lowest free number is this one; when even that fails there is nobody to tell.
            if (::open("/dev/null", stream == STDIN_FILENO ? O_RDONLY : O_WRONLY) < 0)
                break;
    return {.outputIsTerminal = ::isatty(STDOUT_FILENO) == 1,
            .errorIsTerminal = ::isatty(STDERR_FILENO) == 1};
}

} // namespace quillon

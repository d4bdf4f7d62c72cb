#include "service/ThisProcess.h"

#include "platform/linux/LinuxUserFolders.h"
#include "platform/linux/StandardStreams.h"

namespace quillon {

TerminalUse openTerminal() {
    const StandardStreams streams = openStandardStreams();
    return {.output = streams.outputIsTerminal, .error = streams.errorIsTerminal};
}

UserFolders currentUserFolders() {
    return userFolders();
}

std::optional<std::string> environmentVariable(const char* name) {
    return processEnvironment(name);
}

} // namespace quillon

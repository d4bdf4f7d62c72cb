#include "service/ThisProcess.h"

#include "platform/linux/HiddenLine.h"
#include "platform/linux/LinuxUserFolders.h"
#include "platform/linux/ProcessMemory.h"
#include "platform/linux/StandardStreams.h"
#include "platform/linux/StopSignals.h"

#include <cstdlib>

namespace quillon {

TerminalUse openTerminal() {
    const StandardStreams streams = openStandardStreams();
    return {.output = streams.outputIsTerminal, .error = streams.errorIsTerminal};
}

std::function<bool()> untilAskedToStop() {
    noteStopSignals();
    return [] { return !wasAskedToStop(); };
}

std::function<std::optional<std::string>(const std::string&)> secretFromTerminal() {
    if (!inputIsTerminal())
        return {};
    return readHiddenLine;
}

void becomeLongLived() {
    noteEveryStopSignal();
    ignoreBrokenPipes();
    giveMemoryBack();
}

void endProcess(int code) {
    std::_Exit(code);
}

UserFolders currentUserFolders() {
    return userFolders();
}

std::optional<std::string> environmentVariable(const char* name) {
    return processEnvironment(name);
}

} // namespace quillon

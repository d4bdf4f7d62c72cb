#include "cli/CommandLine.h"
#include "service/ThisProcess.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace quillon;
    const TerminalUse terminal = openTerminal();
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    const bool noColor = !environmentVariable("NO_COLOR").value_or("").empty();
    const Console console{.in = std::cin,
                          .out = std::cout,
                          .err = std::cerr,
                          .colored = terminal.output && !noColor,
                          .showsProgress = terminal.error,
                          .mayContinue = untilAskedToStop(),
                          .askInSecret = secretFromTerminal()};
    const ExitCode code =
        runCommandLine({argv + 1, argv + argc}, console, [] { return currentUserFolders(); });
    endProcess(static_cast<int>(code));
}

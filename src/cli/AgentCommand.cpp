#include "cli/CommandLine.h"
#include "cli/Verbs.h"
#include "service/Agent.h"

namespace quillon {

ExitCode agentCommand(const AgentOptions& options, const Console& console, Services& services) {
    return runAgent(
        console, services,
        [&services](const std::vector<std::string>& arguments, const Console& other) {
            return carryOutCommandLine(arguments, other, services);
        },
        options.wait);
}

} // namespace quillon

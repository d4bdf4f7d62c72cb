#include "service/RunningInstance.h"

#include "platform/linux/ProcessEnd.h"
#include "service/CommandClient.h"
#include "service/InstanceRequest.h"

#include <sstream>

namespace quillon {

Called callRunningInstance(const UserFolders& folders, const std::string& token) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const Console console{.in = in, .out = out, .err = err};
    const auto ask = [&](InstanceRequest::Kind kind, const std::string& argument) {
        return carriedOutByInstance(wordsOf({.kind = kind, .argument = argument}), console,
                                    folders);
    };
    const auto shown = ask(InstanceRequest::Kind::show, token);
    if (!shown || *shown == ExitCode::done)
        return {.end = shown ? Called::End::shown : Called::End::nobody};
    if (*shown == ExitCode::usage) {
        err.str({});
        const auto handed = ask(InstanceRequest::Kind::handOver, std::to_string(thisProcess()));
        if (!handed || *handed == ExitCode::done)
            return {.end = handed ? Called::End::handsOver : Called::End::nobody};
    }
    return {.end = Called::End::unwilling, .reason = QString::fromStdString(err.str()).trimmed()};
}

} // namespace quillon

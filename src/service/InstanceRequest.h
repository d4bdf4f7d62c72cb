#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What the application asks of a process that is the instance already, in the place of a command's
/// words. One that doesn't know a request answers it as wrong usage.
struct InstanceRequest {
    enum class Kind {
        show,     ///< your window; the argument is the desktop's activation token, or empty
        handOver, ///< the store; the argument is the number of the process that takes it
    };
    Kind kind = Kind::show;
    std::string argument = {};

    bool operator==(const InstanceRequest&) const = default;
};

[[nodiscard]] std::vector<std::string> wordsOf(const InstanceRequest& request);
/// Nothing when these are the words of a command.
[[nodiscard]] std::optional<InstanceRequest> instanceRequest(const std::vector<std::string>& words);

} // namespace quillon

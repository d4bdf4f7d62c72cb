#include "service/InstanceRequest.h"

#include <array>

namespace quillon {
namespace {

/// No verb begins with such a mark.
constexpr std::array<const char*, 2> names{"!show", "!hand-over"};

} // namespace

std::vector<std::string> wordsOf(const InstanceRequest& request) {
    return {names.at(std::size_t(request.kind)), request.argument};
}

std::optional<InstanceRequest> instanceRequest(const std::vector<std::string>& words) {
    for (std::size_t i = 0; i < names.size(); ++i)
        if (words.size() == 2 && words.front() == names.at(i))
            return InstanceRequest{.kind = InstanceRequest::Kind(i), .argument = words.back()};
    return std::nullopt;
}

} // namespace quillon

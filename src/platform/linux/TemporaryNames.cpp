#include "platform/linux/TemporaryNames.h"

#include "platform/linux/SystemStatus.h"

namespace quillon {

TemporaryNames::TemporaryNames(std::string tag) : tag_(std::move(tag)) {}

std::string TemporaryNames::nextFree(int folder, std::string_view kind) {
    for (;;) {
        std::string name =
            ".quillon-" + tag_ + "-" + std::to_string(++counter_) + "." + std::string(kind);
        // Whoever makes it claims it in one step; this only steps over what a killed process left.
        if (!statusAt(folder, name)) {
            return name;
        }
    }
}

bool TemporaryNames::isTemporaryOf(std::string_view name, std::string_view tag) {
    const std::string start = ".quillon-" + std::string(tag) + "-";
    if (tag.empty() || !name.starts_with(start)) {
        return false;
    }
    const std::string_view rest = name.substr(start.size());
    const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const std::string_view ending = rest.substr(digits);
    return digits > 0 && (ending == ".part" || ending == ".unpack");
}

} // namespace quillon

#pragma once

#include <atomic>
#include <string>
#include <string_view>

namespace quillon {

/// Hidden names for what is not finished yet: ".quillon-TAG-N.part". The tag belongs to one
/// process, so that a later one recognises what a killed one left. Any thread.
class TemporaryNames {
public:
    /// `tag` consists of ASCII letters and digits.
    explicit TemporaryNames(std::string tag);

    /// A name that this object has not given before and that nothing has in `folder`, a descriptor.
    /// `kind` is "part" or "unpack".
    [[nodiscard]] std::string nextFree(int folder, std::string_view kind);

    [[nodiscard]] static bool isTemporaryOf(std::string_view name, std::string_view tag);

private:
    std::string tag_;
    std::atomic<unsigned> counter_{0};
};

} // namespace quillon

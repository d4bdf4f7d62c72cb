#pragma once

#include <string>

namespace quillon {

/// Files of cloud providers. Any thread.
class CloudFiles {
public:
    virtual ~CloudFiles() = default;

    /// True when only a placeholder is on this machine and the contents would have to be
    /// downloaded. False when that can't be told.
    [[nodiscard]] virtual bool isOnlineOnly(const std::string& path) const = 0;
};

} // namespace quillon

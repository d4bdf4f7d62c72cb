#pragma once

#include "platform/CloudFiles.h"

namespace quillon {

/// Placeholders of the Nextcloud desktop client, in both of its ways to mark them: by the end of
/// the name and by an extended attribute.
class NextcloudFiles : public CloudFiles {
public:
    [[nodiscard]] bool isOnlineOnly(const std::string& path) const override;
};

} // namespace quillon

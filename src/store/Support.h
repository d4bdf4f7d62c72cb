#pragma once

#include <QString>

namespace quillon {

/// Starts a mail to support whose subject names the version.
[[nodiscard]] QString mailtoURL(const QString& appVersion);

[[nodiscard]] QString websiteURL();

} // namespace quillon

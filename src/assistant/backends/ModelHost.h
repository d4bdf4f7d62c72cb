#pragma once

#include "platform/Error.h"

#include <QString>
#include <QUrl>

namespace quillon {

/// Whether what is sent there stays on this machine: 127.0.0.0/8, ::1 or "localhost".
[[nodiscard]] bool isLoopback(const QUrl& url);

/// Where a cloud model is asked, from the setting's text ("https://api.example.com"): anything over
/// https, and plain http on this machine alone. Fails with `invalid` and a sentence.
[[nodiscard]] Expected<QUrl> cloudHost(const QString& setting);

/// Where a local model is asked: on this machine alone. Fails with `invalid` and a sentence.
[[nodiscard]] Expected<QUrl> localHost(const QString& setting);

} // namespace quillon

#pragma once

#include "cli/Refusal.h"
#include "service/Services.h"

#include <QByteArray>

#include <string>

namespace quillon {

/// Writes a file that a command was asked for; nothing that exists is replaced. `what` is put down
/// in it ("The rules"), `name` is how people are told of the path.
[[nodiscard]] Chosen<void> writeNewFile(const std::string& path, const QByteArray& bytes,
                                        const QString& what, const QString& name,
                                        Services& services);

} // namespace quillon

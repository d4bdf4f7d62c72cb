#pragma once

#include <QStringList>

#include <string>

namespace quillon {

/// Where a file was downloaded from. Any thread.
class Provenance {
public:
    virtual ~Provenance() = default;

    /// Download address and referrer as the downloading program recorded them, without repeats;
    /// empty when nothing is recorded or it can't be read.
    [[nodiscard]] virtual QStringList whereFrom(const std::string& path) const = 0;
};

} // namespace quillon

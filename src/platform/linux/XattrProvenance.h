#pragma once

#include "platform/Provenance.h"

namespace quillon {

/// Download addresses in extended attributes: the list that Macs keep, then what browsers, curl and
/// wget record on Linux.
class XattrProvenance : public Provenance {
public:
    [[nodiscard]] QStringList whereFrom(const std::string& path) const override;
};

} // namespace quillon

#pragma once

#include "assistant/FileKey.h"

#include <QString>

#include <compare>

namespace quillon {

/// One question about one version of one file. Ordered by question first, so that requests taken in
/// order make few, full batches.
struct VerdictRequest {
    QString question; ///< as the user wrote it: "a receipt or invoice"
    FileKey file;

    std::strong_ordering operator<=>(const VerdictRequest&) const = default;
    bool operator==(const VerdictRequest&) const = default;
};

} // namespace quillon

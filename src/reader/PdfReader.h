#pragma once

#include "reader/FormatReader.h"

namespace quillon {

/// The text of the first page and of the second, joined by a space; never that of a later page. A
/// file that asks for a password has no text.
class PdfReader : public FormatReader {
public:
    [[nodiscard]] std::optional<QString> read(QFile& file) override;
};

} // namespace quillon

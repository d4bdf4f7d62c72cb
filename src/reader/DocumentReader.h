#pragma once

#include "reader/FormatReader.h"

namespace quillon {

/// What word processors write: RTF, .docx, .odt and .doc. What a file is called says little about
/// which of them it is, so that its first bytes decide.
class DocumentReader : public FormatReader {
public:
    [[nodiscard]] std::optional<QString> read(QFile& file) override;
};

} // namespace quillon

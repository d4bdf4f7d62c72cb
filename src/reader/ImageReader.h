#pragma once

#include "reader/FormatReader.h"

#include <tesseract/baseapi.h>

namespace quillon {

/// The words seen in an image, line by line, by the languages that are installed for that. They are
/// taken as they look: no dictionary puts them right.
class ImageReader : public FormatReader {
public:
    ImageReader();

    [[nodiscard]] std::optional<QString> read(QFile& file) override;

private:
    tesseract::TessBaseAPI recognizer_;
    bool isReady_ = false;
};

} // namespace quillon

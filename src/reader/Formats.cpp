#include "reader/Formats.h"

#include "reader/DocumentReader.h"
#include "reader/ImageReader.h"
#include "reader/PdfReader.h"

namespace quillon {

namespace {

template <typename Reader>
std::unique_ptr<FormatReader> make() {
    return std::make_unique<Reader>();
}

struct Format {
    std::string_view name;
    std::unique_ptr<FormatReader> (*make)();
};

constexpr Format formats[] = {
    {"pdf", make<PdfReader>},
    {"image", make<ImageReader>},
    {"document", make<DocumentReader>},
};

} // namespace

std::unique_ptr<FormatReader> makeReader(std::string_view name) {
    for (const Format& format : formats) {
        if (format.name == name) {
            return format.make();
        }
    }
    return nullptr;
}

} // namespace quillon

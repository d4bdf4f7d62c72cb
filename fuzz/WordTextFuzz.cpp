#include "Hold.h"
#include "reader/CompoundFile.h"
#include "reader/WordText.h"

#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const auto text = wordText(bytes, 10'000);
    hold(!text || text->size() <= 10'000);
    const auto file = CompoundFile::open(bytes);
    const auto stream = file ? file->stream(u"WordDocument") : std::nullopt;
    hold(!stream || stream->size() <= bytes.size());
    return 0;
}

#include "Hold.h"
#include "reader/RichText.h"

#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    for (const qsizetype enough : {10, 10'000}) {
        const auto text = richText(bytes, enough);
        hold(!text || text->size() <= enough);
    }
    return 0;
}

#include "reader/MarkupText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    for (const Markup markup : {Markup::word, Markup::openDocument}) {
        MarkupText text(markup, 1000);
        for (qsizetype at = 0; at < bytes.size() && !text.isDone(); at += 100) {
            text.add(bytes.sliced(at, std::min<qsizetype>(100, bytes.size() - at)));
        }
        static_cast<void>(text.take());
    }
    return 0;
}

#include "Hold.h"
#include "platform/linux/PropertyList.h"

#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const auto strings = decodeStringList(bytes)) {
        hold(strings->size() <= 1024);
        static_cast<void>(decodeStringList(encodeStringList(*strings)));
    }
    return 0;
}

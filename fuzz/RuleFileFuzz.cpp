#include "Hold.h"
#include "model/RuleFile.h"

#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto rules = decodeRules(bytes);
    if (!rules) {
        hold(!rules.error().message.isEmpty());
        return 0;
    }
    const QByteArray written = encodeRules(*rules);
    const auto again = decodeRules(written);
    hold(again && encodeRules(*again) == written);
    return 0;
}

#include "assistant/backends/AnswerSchema.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstddef>
#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype cut = bytes.indexOf('\0');
    const QJsonDocument schema = QJsonDocument::fromJson(bytes.first(std::max<qsizetype>(0, cut)));
    const QJsonDocument answer = QJsonDocument::fromJson(bytes.sliced(cut + 1));
    static_cast<void>(
        fits(answer.isArray() ? QJsonValue(answer.array()) : answer.object(), schema.object()));
    return 0;
}

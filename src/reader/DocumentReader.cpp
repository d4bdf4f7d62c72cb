#include "reader/DocumentReader.h"

#include "reader/RichText.h"
#include "reader/WordText.h"
#include "reader/ZippedText.h"

namespace quillon {

namespace {

constexpr qint64 mostBytes = 256 * 1024 * 1024;

struct Signature {
    QByteArrayView start;
    std::optional<QString> (*read)(QByteArrayView contents, qsizetype enough);
};

const Signature signatures[] = {
    {"{\\rtf", richText},
    {"PK\x03\x04", zippedText},
    {QByteArrayView("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8), wordText},
};

} // namespace

std::optional<QString> DocumentReader::read(QFile& file) {
    const qint64 size = std::min(file.size(), mostBytes);
    // A file that is cut short meanwhile ends this process, and that is all.
    const uchar* const bytes = size > 0 ? file.map(0, size) : nullptr;
    if (bytes == nullptr) {
        return std::nullopt;
    }
    const QByteArrayView contents(bytes, size);
    for (const auto& [start, read] : signatures) {
        if (contents.startsWith(start)) {
            return read(contents, enoughText);
        }
    }
    return std::nullopt;
}

} // namespace quillon

#include "platform/linux/PropertyList.h"

#include <plist/plist.h>

#include <span>
#include <type_traits>

namespace quillon {

namespace {

constexpr std::uint64_t maxEntries = 1024;

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};
using PlistNode = std::unique_ptr<std::remove_pointer_t<plist_t>, PlistDeleter>;

/// Looks at a binary property list just far enough to tell whether it is a list of strings. Lists
/// in a list may name one object again and again, so that two hundred bytes unfold into gigabytes;
/// the library would unfold them.
class BinaryListOutline {
public:
    explicit BinaryListOutline(const QByteArray& bytes)
        : bytes_(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                 static_cast<std::size_t>(bytes.size())) {}

    [[nodiscard]] bool isListOfStrings() {
        if (!readTrailer()) {
            return false;
        }
        const std::optional<std::uint64_t> list = offsetOf(topObject_);
        if (!list || bytes_[*list] >> 4 != listMarker) {
            return false;
        }
        std::uint64_t entries = bytes_[*list] & 0x0F;
        std::uint64_t references = *list + 1;
        if (entries == 0x0F) {
            const std::uint64_t width = 1ULL << (bytes_[references] & 0x0F);
            entries = number(references + 1, width).value_or(maxEntries + 1);
            references += 1 + width;
        }
        return entries <= maxEntries && areStrings(references, entries);
    }

private:
    static constexpr std::size_t trailerBytes = 32;
    static constexpr int listMarker = 0xA;
    static constexpr int asciiMarker = 0x5;
    static constexpr int utf16Marker = 0x6;

    bool readTrailer() {
        if (bytes_.size() < trailerBytes + 9) {
            return false;
        }
        objectsEnd_ = bytes_.size() - trailerBytes;
        offsetWidth_ = bytes_[objectsEnd_ + 6];
        referenceWidth_ = bytes_[objectsEnd_ + 7];
        objects_ = *number(objectsEnd_ + 8, 8);
        topObject_ = *number(objectsEnd_ + 16, 8);
        table_ = *number(objectsEnd_ + 24, 8);
        return objects_ <= bytes_.size() && table_ < objectsEnd_;
    }

    /// A big-endian number.
    [[nodiscard]] std::optional<std::uint64_t> number(std::uint64_t at, std::uint64_t width) const {
        if (width == 0 || width > 8 || at > bytes_.size() || width > bytes_.size() - at) {
            return std::nullopt;
        }
        std::uint64_t value = 0;
        for (const std::uint8_t byte : bytes_.subspan(at, width)) {
            value = value << 8 | byte;
        }
        return value;
    }

    [[nodiscard]] std::optional<std::uint64_t> offsetOf(std::uint64_t object) const {
        if (object >= objects_) {
            return std::nullopt;
        }
        const std::optional<std::uint64_t> offset =
            number(table_ + object * offsetWidth_, offsetWidth_);
        return offset && *offset < table_ ? offset : std::nullopt;
    }

    [[nodiscard]] bool areStrings(std::uint64_t references, std::uint64_t entries) const {
        for (std::uint64_t entry = 0; entry < entries; ++entry) {
            const auto object = number(references + entry * referenceWidth_, referenceWidth_);
            const auto offset = object ? offsetOf(*object) : std::nullopt;
            const int marker = offset ? bytes_[*offset] >> 4 : 0;
            if (marker != asciiMarker && marker != utf16Marker) {
                return false;
            }
        }
        return true;
    }

    std::span<const std::uint8_t> bytes_;
    std::uint64_t objectsEnd_ = 0;
    std::uint64_t offsetWidth_ = 0;
    std::uint64_t referenceWidth_ = 0;
    std::uint64_t objects_ = 0;
    std::uint64_t topObject_ = 0;
    std::uint64_t table_ = 0;
};

} // namespace

std::optional<QStringList> decodeStringList(const QByteArray& bytes) {
    if (bytes.startsWith("bplist") && !BinaryListOutline(bytes).isListOfStrings()) {
        return std::nullopt;
    }
    plist_t parsed = nullptr;
    plist_from_memory(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    const PlistNode list(parsed);
    if (!list || plist_get_node_type(list.get()) != PLIST_ARRAY ||
        plist_array_get_size(list.get()) > maxEntries) {
        return std::nullopt;
    }
    QStringList strings;
    for (std::uint32_t i = 0; i < plist_array_get_size(list.get()); ++i) {
        const plist_t item = plist_array_get_item(list.get(), i);
        if (plist_get_node_type(item) != PLIST_STRING) {
            return std::nullopt;
        }
        std::uint64_t length = 0;
        const char* const text = plist_get_string_ptr(item, &length);
        strings.append(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }
    return strings;
}

QByteArray encodeStringList(const QStringList& strings) {
    const PlistNode list(plist_new_array());
    for (const QString& string : strings) {
        plist_array_append_item(list.get(), plist_new_string(string.toUtf8().constData()));
    }
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(list.get(), &bytes, &length);
    QByteArray encoded(bytes, static_cast<qsizetype>(length));
    plist_to_bin_free(bytes);
    return encoded;
}

} // namespace quillon

#include "platform/linux/TrashInfo.h"

#include <array>

namespace quillon {

namespace {

bool isPlain(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') || std::string_view("-._~/").contains(byte);
}

std::string percentEncoded(std::string_view path) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char byte : path) {
        if (isPlain(byte)) {
            encoded += byte;
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        encoded += '%';
        encoded += digits[value >> 4U];
        encoded += digits[value & 0x0FU];
    }
    return encoded;
}

} // namespace

std::string trashInfo(std::string_view path, std::time_t deleted) {
    std::tm local = {};
    std::array<char, 32> date{};
    if (::localtime_r(&deleted, &local) != nullptr) {
        // Nothing is written where it does not fit, and the date is empty then.
        (void)std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
    }
    return "[Trash Info]\nPath=" + percentEncoded(path) + "\nDeletionDate=" + date.data() + "\n";
}

} // namespace quillon

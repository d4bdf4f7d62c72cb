#include "platform/FileNames.h"

#include <algorithm>
#include <cstring>

namespace quillon {

namespace {

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// At most `limit` bytes of `text`, never cutting a character in two.
std::string_view cutTo(std::string_view text, std::size_t limit) {
    if (text.size() <= limit) {
        return text;
    }
    while (limit > 0 && isContinuation(text[limit])) {
        --limit;
    }
    return text.substr(0, limit);
}

std::string_view withoutTrailingSlashes(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return path;
}

/// stem + middle + "." + extension, the stem shortened until the whole fits.
std::string fitted(std::string_view stem, std::string_view middle, std::string_view extension,
                   std::size_t limit) {
    const std::string tail =
        std::string(middle) + (extension.empty() ? "" : "." + std::string(extension));
    // An "extension" that leaves no room for a character of the stem is really part of the name.
    constexpr std::size_t longestCharacter = 4;
    if (tail.size() + longestCharacter > limit) {
        const std::string whole = std::string(stem) + "." + std::string(extension);
        return std::string(cutTo(whole, limit - middle.size())) + std::string(middle);
    }
    return std::string(cutTo(stem, limit - tail.size())) + tail;
}

/// Length of the sequence that `lead` starts and the smallest code point that needs it; 0 when no
/// sequence starts so.
struct Sequence {
    std::size_t length;
    std::uint32_t smallest;
    std::uint32_t bits;
};

Sequence sequenceOf(unsigned char lead) {
    if (lead < 0x80U) {
        return {1, 0, lead};
    }
    if ((lead & 0xE0U) == 0xC0U) {
        return {2, 0x80, lead & 0x1FU};
    }
    if ((lead & 0xF0U) == 0xE0U) {
        return {3, 0x800, lead & 0x0FU};
    }
    if ((lead & 0xF8U) == 0xF0U) {
        return {4, 0x10000, lead & 0x07U};
    }
    return {0, 0, 0};
}

} // namespace

NameParts splitName(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size()) {
        return {name, {}};
    }
    return {name.substr(0, dot), name.substr(dot + 1)};
}

std::string_view lastComponent(std::string_view path) {
    path = withoutTrailingSlashes(path);
    if (path.size() < 2) {
        return path;
    }
    // Asked of every file of a folder; string_view's own search goes byte by byte.
    const void* const slash = ::memrchr(path.data(), '/', path.size());
    if (slash == nullptr) {
        return path;
    }
    return path.substr(std::size_t(static_cast<const char*>(slash) - path.data()) + 1);
}

std::string_view parentPath(std::string_view path) {
    path = withoutTrailingSlashes(path);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) {
        return {};
    }
    return withoutTrailingSlashes(path.substr(0, slash == 0 ? 1 : slash));
}

std::string joinPath(std::string_view folder, std::string_view name) {
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    path = folder;
    if (!path.empty() && path.back() != '/') {
        path += '/';
    }
    path += name;
    return path;
}

std::string fittedName(std::string_view stem, std::string_view extension, std::size_t limit) {
    return fitted(stem, {}, extension, limit);
}

std::string numberedName(std::string_view name, unsigned number, std::size_t limit) {
    const NameParts parts = splitName(name);
    return fitted(parts.stem, " " + std::to_string(number), parts.extension, limit);
}

bool isSameIgnoringCase(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, {}, lowered, lowered);
}

bool isValidUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const Sequence sequence = sequenceOf(static_cast<unsigned char>(bytes[at]));
        if (sequence.length == 0 || sequence.length > bytes.size() - at) {
            return false;
        }
        std::uint32_t character = sequence.bits;
        for (std::size_t next = 1; next < sequence.length; ++next) {
            if (!isContinuation(bytes[at + next])) {
                return false;
            }
            character = character << 6 | (static_cast<unsigned char>(bytes[at + next]) & 0x3FU);
        }
        const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
        if (character < sequence.smallest || isSurrogate || character > 0x10FFFF) {
            return false;
        }
        at += sequence.length;
    }
    return true;
}

} // namespace quillon

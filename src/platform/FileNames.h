#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// The longest name that a file system takes, in bytes.
inline constexpr std::size_t maxNameBytes = 255;

/// A name cut at its last dot. A leading dot starts no extension, nor does a trailing one.
struct NameParts {
    std::string_view stem;
    std::string_view extension; ///< without the dot; empty when there is none
};
[[nodiscard]] NameParts splitName(std::string_view name);

/// The last component of a path, trailing slashes left out.
[[nodiscard]] std::string_view lastComponent(std::string_view path);

/// The path without its last component; "/" stays "/".
[[nodiscard]] std::string_view parentPath(std::string_view path);

[[nodiscard]] std::string joinPath(std::string_view folder, std::string_view name);

/// Shortens the stem on a character boundary so that the whole fits in `limit` bytes.
[[nodiscard]] std::string fittedName(std::string_view stem, std::string_view extension,
                                     std::size_t limit = maxNameBytes);

/// The Nth candidate beside a taken name: "a.txt" → "a 2.txt". `number` is 2 or more.
[[nodiscard]] std::string numberedName(std::string_view name, unsigned number,
                                       std::size_t limit = maxNameBytes);

/// Whether two texts differ at most in the case of ASCII letters.
[[nodiscard]] bool isSameIgnoringCase(std::string_view one, std::string_view other);

/// Strict UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

} // namespace quillon

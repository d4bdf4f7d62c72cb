#pragma once

#include "model/RawValue.h"

#include <cstdint>

namespace quillon {

enum class FileKind : std::uint8_t {
    image,
    video,
    audio,
    document,
    pdf,
    archive,
    code,
    folder,
    other,
};

template <>
inline constexpr auto rawValues<FileKind> = std::to_array<std::u16string_view>({
    u"image",
    u"video",
    u"audio",
    u"document",
    u"pdf",
    u"archive",
    u"code",
    u"folder",
    u"other",
});

template <>
inline constexpr std::u16string_view rawValueNoun<FileKind> = u"a kind";

/// "Images", "PDFs": for sentences, and the subfolder that files of the kind are sorted into.
[[nodiscard]] QString label(FileKind kind);

} // namespace quillon

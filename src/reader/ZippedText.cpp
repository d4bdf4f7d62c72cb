#include "reader/ZippedText.h"

#include "reader/MarkupText.h"

#include <archive.h>
#include <archive_entry.h>
#include <memory>
#include <string_view>
#include <vector>

namespace quillon {

namespace {

constexpr int mostEntries = 4096;
constexpr qsizetype mostUnpacked = 8 * 1024 * 1024;
constexpr std::size_t pieceSize = 64 * 1024;

using Archive = std::unique_ptr<archive, decltype(&::archive_read_free)>;

/// Which markup the text in the entry of that name is written in, if it is the one with the text.
std::optional<Markup> markupOf(std::string_view entry) {
    if (entry == "content.xml") {
        return Markup::openDocument;
    }
    // Some programs number it.
    if (entry.starts_with("word/document") && entry.ends_with(".xml")) {
        return Markup::word;
    }
    return std::nullopt;
}

QString unpackedText(archive* zip, Markup markup, qsizetype enough) {
    MarkupText text(markup, enough);
    std::vector<char> piece(pieceSize);
    qsizetype unpacked = 0;
    while (!text.isDone() && unpacked < mostUnpacked) {
        const auto size =
            static_cast<qsizetype>(::archive_read_data(zip, piece.data(), piece.size()));
        if (size <= 0) {
            break; // what could be unpacked counts
        }
        unpacked += size;
        text.add(QByteArrayView(piece.data(), size));
    }
    return text.take();
}

} // namespace

std::optional<QString> zippedText(QByteArrayView contents, qsizetype enough) {
    const Archive zip(::archive_read_new(), &::archive_read_free);
    // By its table of contents alone: without one, all that comes before would have to be unpacked.
    if (!zip || ::archive_read_support_format_zip_seekable(zip.get()) != ARCHIVE_OK ||
        ::archive_read_open_memory(zip.get(), contents.data(),
                                   static_cast<std::size_t>(contents.size())) != ARCHIVE_OK) {
        return std::nullopt;
    }
    archive_entry* entry = nullptr;
    for (int i = 0;
         i < mostEntries && ::archive_read_next_header(zip.get(), &entry) >= ARCHIVE_WARN; ++i) {
        const char* const name = ::archive_entry_pathname_utf8(entry);
        if (const auto markup = name ? markupOf(name) : std::nullopt) {
            return unpackedText(zip.get(), *markup, enough);
        }
    }
    return std::nullopt;
}

} // namespace quillon

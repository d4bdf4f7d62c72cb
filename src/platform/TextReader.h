#pragma once

#include "platform/Error.h"

#include <QString>

#include <string>

namespace quillon {

/// Which reader a file's contents need. Its kind decides, never its contents.
enum class TextKind {
    pdf,      ///< the text of pages one and two
    image,    ///< the words seen in it
    richText, ///< RTF
    document, ///< .docx, .odt, .doc: whichever the contents turn out to be
    plain,    ///< the first 4,000 bytes, taken as UTF-8 and repaired
};

/// Reads the beginning of what is written in a file. Any thread.
class TextReader {
public:
    virtual ~TextReader() = default;

    /// The text as it stands there, white space included; never more than 64 KB of it and often the
    /// beginning alone. Empty when the file says nothing. Blocks, ten seconds at most. Contents
    /// that can't be read, whatever the reason, are `invalid`; a reader that took too long is
    /// `timedOut`. Never follows a link and never changes when the file was last opened.
    [[nodiscard]] virtual Expected<QString> read(const std::string& path, TextKind kind) = 0;
};

} // namespace quillon

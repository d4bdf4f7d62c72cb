#pragma once

#include "platform/Clock.h"

#include <QString>
#include <QStringList>

#include <string>

namespace quillon {

class DateFormats;

/// What the tokens of a rename pattern stand for.
struct RenameSource {
    std::string fileName; ///< the file's name now, valid UTF-8
    Timestamp date;       ///< last modified
    unsigned counter = 1;
    QStringList captures; ///< {1} is the first
};

/// The file name that a pattern gives: one legal path component that keeps the file's extension. An
/// empty pattern is "{name}". Tokens are found in the pattern alone, never in text that took the
/// place of one; unknown ones stay as they are, and so does a date format that can't be read.
[[nodiscard]] std::string expand(const QString& pattern, const RenameSource& source,
                                 DateFormats& dates);

/// `text` as the new name of the file: the file's extension is appended unless the text ends with
/// it, whatever its letter case, and the whole is made legal. Text with nothing visible before the
/// extension leaves the stem as it is.
[[nodiscard]] std::string keepingExtension(const QString& text, const std::string& fileName);

} // namespace quillon

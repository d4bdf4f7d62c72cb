#pragma once

#include <QString>

#include <string>

namespace quillon {

/// One legal path component made of any text, in UTF-8: never empty, ".", ".." or hidden, at most
/// maxNameBytes with the extension kept and the stem shortened on a character boundary. A slash
/// becomes "-", a control character or line break a space, a leading dot "_". A stem without a
/// visible character becomes `fallbackStem`, which must have one. `extension` is without its dot
/// and may be empty.
[[nodiscard]] std::string legalName(const QString& stem, const QString& extension,
                                    const QString& fallbackStem);

} // namespace quillon

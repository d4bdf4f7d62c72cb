#pragma once

#include <QStringView>

#include <cstddef>

namespace quillon {

/// About how many tokens a text is to a model, on the safe side: English is 1.2 to 1.5 tokens a
/// word, and counts here for almost three. A word of up to twelve ASCII letters is a token for
/// every two; a longer one, which is seldom a word, one a letter. Digits, signs and line breaks are
/// one each, anything else one for each byte of UTF-8, which is the most that tokenizers make of
/// it. A space goes with what follows it.
[[nodiscard]] std::size_t estimatedTokens(QStringView text);

} // namespace quillon

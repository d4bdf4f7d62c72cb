#include "assistant/TokenEstimate.h"

namespace quillon {
namespace {

constexpr std::size_t longestWord = 12;

bool isAsciiLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

std::size_t utf8Bytes(QChar unit) {
    if (unit.unicode() < 0x80)
        return 1;
    return unit.unicode() < 0x800 || unit.isSurrogate() ? 2 : 3;
}

} // namespace

std::size_t estimatedTokens(QStringView text) {
    std::size_t tokens = 0;
    std::size_t letters = 0;
    const auto endWord = [&] {
        tokens += letters > longestWord ? letters : (letters + 1) / 2;
        letters = 0;
    };
    bool afterSpace = false;
    for (const QChar c : text) {
        if (isAsciiLetter(c)) {
            ++letters;
        } else {
            endWord();
            // Rows of spaces are not always one token.
            if (c != u' ' || afterSpace)
                tokens += utf8Bytes(c);
        }
        afterSpace = c == u' ';
    }
    endWord();
    return tokens;
}

} // namespace quillon

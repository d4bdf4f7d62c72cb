#include "reader/RichTextTokens.h"

#include <algorithm>

namespace quillon {

namespace {

using Kind = RichTextToken::Kind;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int hexDigit(char c) {
    return isDigit(c)                               ? c - '0'
           : (c | 0x20) >= 'a' && (c | 0x20) <= 'f' ? (c | 0x20) - 'a' + 10
                                                    : 0;
}

RichTextToken byteToken(int value) {
    return {.kind = Kind::byte, .text = {}, .number = value};
}

} // namespace

std::optional<RichTextToken> RichTextTokens::next() {
    while (!rest_.empty() && (rest_.front() == '\r' || rest_.front() == '\n')) {
        skip(1);
    }
    if (rest_.empty()) {
        return std::nullopt;
    }
    const char first = rest_.front();
    skip(1);
    switch (first) {
    case '{':
        return RichTextToken{.kind = Kind::open, .text = {}, .number = {}};
    case '}':
        return RichTextToken{.kind = Kind::close, .text = {}, .number = {}};
    case '\\':
        return control();
    default:
        return byteToken(static_cast<unsigned char>(first));
    }
}

RichTextToken RichTextTokens::control() {
    if (!rest_.empty() && isLetter(rest_.front())) {
        return word();
    }
    const QByteArrayView symbol = rest_.first(std::min<qsizetype>(1, rest_.size()));
    skip(1);
    if (symbol == "'") {
        const int high = rest_.empty() ? 0 : hexDigit(rest_.front());
        skip(1);
        const int low = rest_.empty() ? 0 : hexDigit(rest_.front());
        skip(1);
        return byteToken(high << 4 | low);
    }
    return {.kind = Kind::symbol, .text = symbol, .number = {}};
}

RichTextToken RichTextTokens::word() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), isLetter);
    RichTextToken token{.kind = Kind::word, .text = rest_.first(end - rest_.begin()), .number = {}};
    skip(token.text.size());
    token.number = number();
    if (!rest_.empty() && rest_.front() == ' ') {
        skip(1);
    }
    if (token.text == "bin") {
        skip(std::max(0, token.number.value_or(0)));
    }
    return token;
}

std::optional<int> RichTextTokens::number() {
    constexpr int most = 200'000'000;
    const bool isNegative = rest_.size() > 1 && rest_.front() == '-' && isDigit(rest_[1]);
    if (isNegative) {
        skip(1);
    }
    std::optional<int> value;
    while (!rest_.empty() && isDigit(rest_.front())) {
        value = std::min(most, value.value_or(0) * 10 + (rest_.front() - '0'));
        skip(1);
    }
    return value && isNegative ? -*value : value;
}

} // namespace quillon

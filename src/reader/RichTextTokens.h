#pragma once

#include <QByteArrayView>

#include <optional>

namespace quillon {

/// One piece of RTF.
struct RichTextToken {
    enum class Kind {
        open,   ///< the start of a group
        close,  ///< its end
        word,   ///< a control word, such as "par" or "u"
        symbol, ///< a control symbol: `text` is its one character
        byte,   ///< a byte of text, `number`, in the code page of the moment
    };
    Kind kind = Kind::byte;
    QByteArrayView text;       ///< the word or the symbol
    std::optional<int> number; ///< what follows a word; the value of a byte

    bool operator==(const RichTextToken&) const = default;
};

/// Cuts RTF into its pieces. Binary data is left out, and so are the line breaks between pieces.
class RichTextTokens {
public:
    explicit RichTextTokens(QByteArrayView contents) : rest_(contents) {}

    /// Absent at the end.
    [[nodiscard]] std::optional<RichTextToken> next();

private:
    [[nodiscard]] RichTextToken control();
    [[nodiscard]] RichTextToken word();
    [[nodiscard]] std::optional<int> number();
    void skip(qsizetype bytes) { rest_ = rest_.sliced(std::min(bytes, rest_.size())); }

    QByteArrayView rest_;
};

} // namespace quillon

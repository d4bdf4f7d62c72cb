#include "reader/WordText.h"

#include "reader/CodePage.h"
#include "reader/CompoundFile.h"
#include "reader/LittleEndian.h"

#include <algorithm>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int encrypted = 0x0100;
constexpr int secondTable = 0x0200;
constexpr int firstVersion = 193; ///< Word 97

/// The head of the main stream, as far as it matters here.
struct Head {
    int flags = 0;
    std::uint32_t bodyLength = 0;   ///< in characters
    std::uint32_t piecesOffset = 0; ///< in the table stream
    std::uint32_t piecesLength = 0;
};

std::optional<Head> readHead(QByteArrayView document) {
    const auto piecesLength = numberAt<std::uint32_t>(document, 0x1A6);
    if (!piecesLength || numberAt<std::uint16_t>(document, 0) != 0xA5EC ||
        *numberAt<std::uint16_t>(document, 2) < firstVersion) {
        return std::nullopt;
    }
    return Head{.flags = *numberAt<std::uint16_t>(document, 0x0A),
                .bodyLength = *numberAt<std::uint32_t>(document, 0x4C),
                .piecesOffset = *numberAt<std::uint32_t>(document, 0x1A2),
                .piecesLength = *piecesLength};
}

/// Finds the list of pieces behind the descriptions of changed formats.
std::optional<QByteArrayView> pieceList(QByteArrayView table) {
    constexpr std::uint8_t formatMark = 1;
    constexpr std::uint8_t piecesMark = 2;
    std::uint64_t at = 0;
    while (numberAt<std::uint8_t>(table, at) == formatMark) {
        at += 3 + numberAt<std::uint16_t>(table, at + 1).value_or(0);
    }
    const auto length = numberAt<std::uint32_t>(table, at + 1);
    if (!length || numberAt<std::uint8_t>(table, at) != piecesMark) {
        return std::nullopt;
    }
    return partOf(table, at + 5, *length);
}

/// Puts the characters of the pieces together, and leaves out what is no text.
class Body {
public:
    Body(QByteArrayView document, qsizetype enough) : document_(document), enough_(enough) {}

    void addPieces(QByteArrayView list, std::uint32_t bodyLength) {
        const auto size = static_cast<std::uint64_t>(list.size());
        const std::uint64_t count = size < 4 ? 0 : (size - 4) / 12;
        for (std::uint64_t i = 0; i < count && text_.size() < enough_; ++i) {
            const auto start = numberAt<std::uint32_t>(list, i * 4);
            const auto end = numberAt<std::uint32_t>(list, i * 4 + 4);
            const auto place = numberAt<std::uint32_t>(list, (count + 1) * 4 + i * 8 + 2);
            if (!start || !end || !place || *end <= *start || *start >= bodyLength) {
                break;
            }
            addPiece(*place, std::min(*end, bodyLength) - *start);
        }
    }

    [[nodiscard]] QString take() { return std::move(text_); }

private:
    void addPiece(std::uint32_t place, std::uint64_t length) {
        constexpr std::uint32_t oneByteEach = 0x40000000;
        // What is left out has to be counted too, but is seldom much.
        length = std::min<std::uint64_t>(length, 64UL * static_cast<std::uint64_t>(enough_));
        if ((place & oneByteEach) != 0) {
            addText(page_.decode(partOf(document_, (place & ~oneByteEach) / 2, length)));
        } else {
            const QByteArrayView bytes = partOf(document_, place, length * 2);
            QString text;
            for (std::uint64_t at = 0; const auto unit = numberAt<char16_t>(bytes, at); at += 2) {
                text += QChar(*unit);
            }
            addText(text);
        }
    }

    void addText(const QString& text) {
        for (const QChar c : text) {
            if (text_.size() >= enough_) {
                return;
            }
            addCharacter(c.unicode());
        }
    }

    /// A field is its code, a separator and its result; only the result stands on the page.
    void addCharacter(char16_t c) {
        constexpr char16_t fieldStart = 0x13;
        constexpr char16_t fieldSeparator = 0x14;
        constexpr char16_t fieldEnd = 0x15;
        switch (c) {
        case fieldStart:
            isCode_.push_back(true); // seldom more than two
            break;
        case fieldSeparator:
            if (!isCode_.empty()) {
                isCode_.back() = false;
            }
            break;
        case fieldEnd:
            if (!isCode_.empty()) {
                isCode_.pop_back();
            }
            break;
        default:
            if (std::ranges::find(isCode_, true) == isCode_.end()) {
                addShown(c);
            }
        }
    }

    void addShown(char16_t c) {
        switch (c) {
        case 0x07: // the end of a cell
            text_ += u'\t';
            break;
        case 0x0B:
        case 0x0C:
        case 0x0D:
            text_ += u'\n';
            break;
        case 0x1E:
            text_ += u'-';
            break;
        default:
            if (c >= 0x20 || c == u'\t') {
                text_ += QChar(c);
            }
        }
    }

    QByteArrayView document_;
    qsizetype enough_;
    CodePage page_;
    std::vector<bool> isCode_; ///< of the fields around, from the outside in
    QString text_;
};

} // namespace

std::optional<QString> wordText(QByteArrayView contents, qsizetype enough) {
    const std::optional<CompoundFile> file = CompoundFile::open(contents);
    const std::optional<QByteArray> document = file ? file->stream(u"WordDocument") : std::nullopt;
    const std::optional<Head> head = document ? readHead(*document) : std::nullopt;
    if (!head || (head->flags & encrypted) != 0) {
        return std::nullopt;
    }
    const std::optional<QByteArray> table =
        file->stream((head->flags & secondTable) != 0 ? u"1Table" : u"0Table");
    const std::optional<QByteArrayView> pieces =
        table ? pieceList(partOf(*table, head->piecesOffset, head->piecesLength)) : std::nullopt;
    if (!pieces) {
        return std::nullopt;
    }
    Body body(*document, enough);
    body.addPieces(*pieces, head->bodyLength);
    return body.take();
}

} // namespace quillon

#include "reader/RichText.h"

#include "reader/CodePage.h"
#include "reader/RichTextTokens.h"

#include <algorithm>
#include <map>
#include <vector>

namespace quillon {

namespace {

using Kind = RichTextToken::Kind;

struct Said {
    QByteArrayView word;
    char16_t character;
};

constexpr Said characters[] = {
    {"par", u'\n'},           {"line", u'\n'},       {"sect", u'\n'},
    {"page", u'\n'},          {"row", u'\n'},        {"tab", u'\t'},
    {"cell", u'\t'},          {"emdash", u'\u2014'}, {"endash", u'\u2013'},
    {"lquote", u'\u2018'},    {"rquote", u'\u2019'}, {"ldblquote", u'\u201C'},
    {"rdblquote", u'\u201D'}, {"bullet", u'\u2022'}, {"emspace", u'\u2003'},
    {"enspace", u'\u2002'},
};

constexpr Said symbols[] = {
    {"\\", u'\\'}, {"{", u'{'},   {"}", u'}'},   {"~", u'\u00A0'},
    {"_", u'-'},   {"\n", u'\n'}, {"\r", u'\n'}, {"\t", u'\t'},
};

/// Groups that start with one of these hold what is not part of the page's text.
constexpr QByteArrayView asides[] = {
    "colortbl", "stylesheet", "info",    "pict",      "header",    "headerl", "headerr",
    "headerf",  "footer",     "footerl", "footerr",   "footerf",   "fldinst", "object",
    "private",  "xe",         "tc",      "listtable", "themedata", "rxe",
};

struct Charset {
    int number;
    int codePage;
};

constexpr Charset charsets[] = {
    {77, 10000}, {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253},
    {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
    {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

/// What a group inherits from the one around it.
struct Group {
    bool isFontTable = false;
    bool isAside = false;
    bool isHidden = false;
    int font = -1;
    int bytesAfterUnicode = 1;
};

class Extraction {
public:
    Extraction(QByteArrayView contents, qsizetype enough) : tokens_(contents), enough_(enough) {}

    [[nodiscard]] QString run() {
        while (text_.size() + bytes_.size() < enough_) {
            const std::optional<RichTextToken> token = tokens_.next();
            if (!token) {
                break;
            }
            take(*token);
        }
        flushBytes();
        return text_;
    }

private:
    static constexpr std::size_t deepest = 500; ///< nobody writes as deep; what is below is skipped

    void take(const RichTextToken& token) {
        if (token.kind == Kind::open || token.kind == Kind::close) {
            bytesToSkip_ = 0;
            token.kind == Kind::open ? openGroup() : closeGroup();
            return;
        }
        if (overflow_ > 0) {
            return;
        }
        if (bytesToSkip_ > 0 && (token.kind != Kind::word || token.text != "u")) {
            --bytesToSkip_; // a control counts as one byte
        } else if (token.kind == Kind::byte) {
            takeByte(*token.number);
        } else if (token.kind == Kind::symbol) {
            takeSymbol(token.text);
        } else {
            takeWord(token.text, token.number);
        }
        startsGroup_ = false;
    }

    void openGroup() {
        if (groups_.size() >= deepest) {
            ++overflow_;
            return;
        }
        groups_.push_back(group());
        startsGroup_ = true;
    }

    void closeGroup() {
        if (overflow_ > 0) {
            --overflow_;
        } else if (groups_.size() > 1) {
            flushBytes();
            groups_.pop_back();
        }
        startsGroup_ = false;
    }

    void takeByte(int value) {
        if (isShown()) {
            bytes_.append(static_cast<char>(value));
        }
    }

    void takeSymbol(QByteArrayView symbol) {
        if (symbol == "*" && startsGroup_) {
            group().isAside = true; // what starts like this may be left out by who doesn't know it
        } else if (const Said* const said = find(symbols, symbol)) {
            append(said->character);
        }
    }

    void takeWord(QByteArrayView word, std::optional<int> number) {
        if (word == "u") {
            append(static_cast<char16_t>(number.value_or(0)));
            bytesToSkip_ = group().bytesAfterUnicode;
        } else if (word == "uc") {
            group().bytesAfterUnicode = std::clamp(number.value_or(1), 0, 255);
        } else if (word == "f") {
            flushBytes();
            group().font = number.value_or(-1);
        } else if (word == "fcharset" && group().isFontTable) {
            noteFont(number.value_or(0));
        } else if (word == "v") {
            flushBytes();
            group().isHidden = number.value_or(1) != 0;
        } else if (word == "fonttbl") {
            group().isFontTable = true;
        } else if (const Said* const said = find(characters, word)) {
            append(said->character);
        } else if (startsGroup_ && std::ranges::find(asides, word) != std::end(asides)) {
            group().isAside = true;
        } else {
            takeCodePage(word, number);
        }
    }

    void takeCodePage(QByteArrayView word, std::optional<int> number) {
        const int named = word == "ansicpg" ? number.value_or(1252)
                          : word == "mac"   ? 10000
                          : word == "pc"    ? 437
                          : word == "pca"   ? 850
                                            : 0;
        if (named != 0) {
            flushBytes();
            documentPage_ = named;
        }
    }

    void noteFont(int number) {
        const auto* const charset = std::ranges::find(charsets, number, &Charset::number);
        if (charset != std::end(charsets) && fontPages_.size() < 4096) {
            fontPages_[group().font] = charset->codePage;
        }
    }

    void append(char16_t character) {
        flushBytes();
        if (isShown()) {
            text_ += QChar(character);
        }
    }

    /// Bytes wait for each other, for a character may be made of two.
    void flushBytes() {
        if (bytes_.isEmpty()) {
            return;
        }
        const auto font = fontPages_.find(group().font);
        const int wanted = font == fontPages_.end() ? documentPage_ : font->second;
        if (page_.number() != wanted) {
            page_ = CodePage(wanted);
        }
        text_ += page_.decode(bytes_);
        bytes_.clear();
    }

    [[nodiscard]] Group& group() { return groups_.back(); }
    [[nodiscard]] bool isShown() const {
        const Group& group = groups_.back();
        return !group.isAside && !group.isFontTable && !group.isHidden;
    }

    template <std::size_t size>
    [[nodiscard]] static const Said* find(const Said (&table)[size], QByteArrayView word) {
        const auto* const found = std::ranges::find(table, word, &Said::word);
        return found == std::end(table) ? nullptr : found;
    }

    RichTextTokens tokens_;
    qsizetype enough_;
    std::vector<Group> groups_{Group()};
    std::size_t overflow_ = 0;
    bool startsGroup_ = false;
    int bytesToSkip_ = 0;
    int documentPage_ = 1252;
    std::map<int, int> fontPages_;
    CodePage page_;
    QByteArray bytes_;
    QString text_;
};

} // namespace

std::optional<QString> richText(QByteArrayView contents, qsizetype enough) {
    if (!contents.startsWith("{\\rtf")) {
        return std::nullopt;
    }
    return Extraction(contents, enough).run();
}

} // namespace quillon

#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>
#include <optional>
#include <string_view>

namespace quillon {

/// Words with what they stand for: "larger than".
template <typename Meaning>
struct Phrase {
    std::u16string_view words; ///< lower-case, one space between them
    Meaning meaning;
};

/// Reads words that a person has typed, from the left. Case does not matter, nor how many spaces
/// there are, nor which apostrophe. The text is to outlive it.
class PhraseReader {
public:
    explicit PhraseReader(QStringView text) : rest_(text.trimmed()) {}

    /// Takes these words, if the text goes on with them.
    bool take(std::u16string_view words);

    /// Takes words of which each is one of these, as long as there are any.
    void skip(std::initializer_list<std::u16string_view> words);

    /// Takes the longest phrase with which the text goes on; nothing when there is none.
    template <typename Phrases>
    auto takeOne(const Phrases& phrases) -> std::optional<decltype(phrases[0].meaning)> {
        decltype(&phrases[0]) longest = nullptr;
        for (const auto& phrase : phrases)
            if (taking(phrase.words) && (!longest || phrase.words.size() > longest->words.size()))
                longest = &phrase;
        if (longest == nullptr)
            return std::nullopt;
        take(longest->words);
        return longest->meaning;
    }

    /// What is left, as typed.
    [[nodiscard]] QStringView rest() const { return rest_; }

    /// What is left, without the quotes around it.
    [[nodiscard]] QString value() const;

    /// As many words as that phrase has.
    [[nodiscard]] QString wordsLike(std::u16string_view phrase) const;

private:
    /// What is left after these words; nothing when the text does not go on with them.
    [[nodiscard]] std::optional<QStringView> taking(std::u16string_view words) const;

    QStringView rest_;
};

/// "“lager than” is not WHAT; the nearest is “larger than”": what the text goes on with, held
/// against every phrase.
class NearestPhrase {
public:
    explicit NearestPhrase(const PhraseReader& reader) : reader_(reader) {}

    template <typename Phrases>
    NearestPhrase& offer(const Phrases& phrases) {
        for (const auto& phrase : phrases)
            offerOne(phrase.words);
        return *this;
    }

    [[nodiscard]] QString sentence(const QString& what) const;

private:
    void offerOne(std::u16string_view phrase);

    const PhraseReader& reader_;
    std::optional<std::size_t> changes_;
    QString given_;
    QString phrase_;
};

} // namespace quillon

#include "engine/PhraseReader.h"

#include "model/NearestWord.h"
#include "model/RawValue.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::pair<QChar, QChar> quotes[] = {
    {u'“', u'”'}, {u'"', u'"'}, {u'‘', u'’'}, {u'\'', u'\''}};

bool isOpeningQuote(QChar c) {
    return c == u'“' || c == u'"';
}

QString plain(QStringView word) {
    return word.toString().toLower().replace(u'’', u'\'');
}

/// The first word; an opening quote begins a new one.
QStringView firstWord(QStringView text) {
    qsizetype end = 0;
    while (end < text.size() && !text[end].isSpace() && (end == 0 || !isOpeningQuote(text[end])))
        ++end;
    return text.first(end);
}

QStringView afterFirst(QStringView text) {
    return text.sliced(firstWord(text).size()).trimmed();
}

} // namespace

std::optional<QStringView> PhraseReader::taking(std::u16string_view words) const {
    QStringView rest = rest_;
    for (const QStringView word : QStringView(words).tokenize(u' ')) {
        if (rest.isEmpty() || plain(firstWord(rest)) != word)
            return std::nullopt;
        rest = afterFirst(rest);
    }
    return rest;
}

bool PhraseReader::take(std::u16string_view words) {
    const auto rest = taking(words);
    rest_ = rest.value_or(rest_);
    return rest.has_value();
}

void PhraseReader::skip(std::initializer_list<std::u16string_view> words) {
    while (std::ranges::any_of(words, [&](std::u16string_view word) { return take(word); })) {
    }
}

QString PhraseReader::value() const {
    for (const auto& [opening, closing] : quotes)
        if (rest_.size() >= 2 && rest_.front() == opening && rest_.back() == closing)
            return rest_.sliced(1, rest_.size() - 2).toString();
    return rest_.toString();
}

QString PhraseReader::wordsLike(std::u16string_view phrase) const {
    QStringList words;
    QStringView rest = rest_;
    for (auto count = 1 + std::ranges::count(phrase, u' '); count > 0 && !rest.isEmpty(); --count) {
        words.append(firstWord(rest).toString());
        rest = afterFirst(rest);
    }
    return words.join(u' ');
}

void NearestPhrase::offerOne(std::u16string_view phrase) {
    const QString given = reader_.wordsLike(phrase);
    const std::size_t changes =
        changedLetters(plain(given).toStdString(), toQString(phrase).toStdString());
    if (changes_ && *changes_ <= changes)
        return;
    changes_ = changes;
    given_ = given;
    phrase_ = toQString(phrase);
}

QString NearestPhrase::sentence(const QString& what) const {
    return u"“%1” is not %2; the nearest is “%3”"_s.arg(given_, what, phrase_);
}

} // namespace quillon

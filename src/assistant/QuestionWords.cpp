#include "assistant/QuestionWords.h"

#include <QSet>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostWords = 200;

bool isApostrophe(QChar c) {
    return c == u'\'' || c == u'’' || c == u'ʼ';
}

/// What says how something is asked, not what about. Words for what was done ("trashed", "failed")
/// are not among them.
const QSet<QString>& stopWords() {
    static const QSet<QString> words = [] {
        const QString text =
            u"a about above after again all already also am an and any anybody anyone anything "
            "are arent as ask at away be because been before behind being below but by came can "
            "cannot cant come could couldnt did didnt do does doesnt doing done dont each else "
            "end ended ever every everything explain find first for from gave get gets give go "
            "goes going gone got had hadnt handle handled happen happened happening happens has "
            "hasnt have havent he hello help here hers hey hi his how i id if ill im in instead "
            "into is isnt it items its ive just keep kept know last lately latest left let lets "
            "like list look looked looking lost made make many may me might mine most much must "
            "my need needed never new newest no nor not nothing now of off ok okay on once one "
            "ones only or other our out over perhaps please possible put puts quillon dobbin "
            "really recent recently right rule rules same saw say see seem seems send sent "
            "shall she should shouldnt show shown since so some somebody somehow someone "
            "something stuff take taken tell than thank thanks that thats the their them then "
            "there theres these they theyre thing things this those through tidied tidy to told "
            "too took try turn under until up us use used using usually very want wanted was "
            "wasnt way we went were werent what whatever whats when whens where wheres which "
            "while who whole whom whose why will with within without wont work worked would "
            "wouldnt yet you your youve file files folder folders activity happily earlier "
            "interesting strange ago around"_s;
        const QStringList list = text.split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

} // namespace

QString plainText(const QString& text) {
    const bool isAscii = std::ranges::all_of(text, [](QChar c) { return c < u'\x80'; });
    const QString open = isAscii ? text : text.normalized(QString::NormalizationForm_KD);
    QString plain;
    plain.reserve(open.size());
    for (const QChar c : open)
        if (!isApostrophe(c) && (isAscii || c.category() != QChar::Mark_NonSpacing))
            plain += c;
    return plain.toCaseFolded();
}

QStringList questionWords(const QString& question) {
    const QString text = plainText(question);
    QStringList words;
    QString word;
    const auto endWord = [&] {
        while (!word.isEmpty() && !word.back().isLetterOrNumber() && !word.back().isMark())
            word.chop(1);
        if (!word.isEmpty() && words.size() < mostWords)
            words.append(word);
        word.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool inDate = c == u'/' && i + 1 < text.size() && text[i + 1].isDigit();
        if (c.isSpace() || QStringView(u"\"“”„«»‹›<>()[]{},;!?*|\\").contains(c) ||
            (c == u'/' && !inDate))
            endWord();
        else if (!word.isEmpty() || c.isLetterOrNumber() || c.isSurrogate())
            word += c;
    }
    endWord();
    return words;
}

bool isStopWord(const QString& word) {
    return stopWords().contains(word);
}

QString singular(const QString& word) {
    const auto ends = [&](QStringView ending, qsizetype least) {
        return word.size() >= least && word.endsWith(ending);
    };
    if (ends(u"ies", 5))
        return word.chopped(3) + u'y';
    for (const QStringView ending : {u"sses", u"xes", u"ches", u"shes", u"zes"})
        if (ends(ending, 5))
            return word.chopped(2);
    if (!ends(u"s", 4) || ends(u"ss", 0) || ends(u"us", 0) || ends(u"is", 0))
        return word;
    return word.chopped(1);
}

} // namespace quillon

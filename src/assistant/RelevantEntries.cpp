#include "assistant/RelevantEntries.h"

#include "assistant/QuestionWords.h"
#include "assistant/TimeSpanInQuestion.h"
#include "engine/KindTables.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// How much a word counts by where it is found.
constexpr double inFileName = 10;
constexpr double inRuleName = 5;
constexpr double inDestination = 4;
constexpr double asKind = 4;
constexpr double asDeed = 2;
constexpr double inFolderName = 2;

constexpr double wholeName = 2;   ///< "Setup.dmg" itself, against a word of a name, which is 1
constexpr double everyPart = 1.2; ///< "Setup.dmg" in "Setup 2.dmg"
constexpr double beginning = 0.7; ///< "inv" of "invoice"
constexpr double within = 0.5;    ///< "voice" of "invoice"
constexpr std::size_t mostQuoted = 10;
constexpr qsizetype shortestBeginning = 3;
constexpr qsizetype shortestWithin = 4;

/// What scores less than this part of the best is left out.
constexpr double leastOfBest = 0.25;
/// What "the latest invoice" may be, likewise.
constexpr double latestOfBest = 0.5;
constexpr double newness = 0.25; ///< what being new adds, as a part of the score
constexpr double daysToHalf = 14;

const QHash<QString, FileKind>& kindWords() {
    static const QHash<QString, FileKind> words{
        {u"picture"_s, FileKind::image},     {u"photo"_s, FileKind::image},
        {u"image"_s, FileKind::image},       {u"video"_s, FileKind::video},
        {u"movie"_s, FileKind::video},       {u"film"_s, FileKind::video},
        {u"song"_s, FileKind::audio},        {u"music"_s, FileKind::audio},
        {u"audio"_s, FileKind::audio},       {u"recording"_s, FileKind::audio},
        {u"document"_s, FileKind::document}, {u"spreadsheet"_s, FileKind::document},
        {u"archive"_s, FileKind::archive},   {u"code"_s, FileKind::code}};
    return words;
}

/// What the log says of what a word of a question means.
const QHash<QString, QString>& deedWords() {
    static const QHash<QString, QString> words = [] {
        QHash<QString, QString> byWord;
        const auto add = [&](QStringView list, const QString& logged) {
            for (const QStringView word : list.split(u' '))
                byWord.insert(word.toString(), logged);
        };
        add(u"trash trashed bin binned delete deleted deleting remove removed thrown throw",
            u"trash"_s);
        add(u"move moved moving filed sorted", u"moved"_s);
        add(u"rename renamed renaming", u"renamed"_s);
        add(u"copy copied copying duplicated", u"copied"_s);
        add(u"tag tagged tagging", u"tag"_s);
        add(u"unpack unpacked unzip unzipped extract extracted", u"unpacked"_s);
        add(u"script ran run", u"ran "_s);
        return byWord;
    }();
    return words;
}

bool isFailureWord(const QString& word) {
    static const QStringList words{u"fail"_s,   u"failed"_s,  u"failure"_s, u"error"_s,
                                   u"wrong"_s,  u"problem"_s, u"trouble"_s, u"failing"_s,
                                   u"unable"_s, u"broken"_s,  u"break"_s,   u"broke"_s};
    return words.contains(word);
}

QStringList partsOf(const QString& plain) {
    QStringList parts;
    QString part;
    for (const QChar c : plain + u' ') {
        if (c.isLetterOrNumber() || c.isMark() || c.isSurrogate()) {
            part += c;
        } else if (!part.isEmpty()) {
            parts.append(singular(part));
            part.clear();
        }
    }
    return parts;
}

/// One text of an entry, ready to be looked through.
struct Field {
    QString plain;
    QStringList words;
    QString joined; ///< "screen shot" is also "screenshot"

    explicit Field(const QString& text)
        : plain(plainText(text)), words(partsOf(plain)), joined(words.join(QString())) {}
};

struct Keyword {
    QString plain;
    QString single; ///< in the singular
    QStringList parts;
    std::optional<FileKind> kind = std::nullopt;
    QString deed = {};
    bool isFailure = false;
};

Keyword keywordOf(const QString& word) {
    Keyword keyword{.plain = word, .single = singular(word), .parts = partsOf(word)};
    const auto& kinds = kindWords();
    if (const auto kind = kinds.constFind(keyword.single); kind != kinds.cend())
        keyword.kind = *kind;
    keyword.deed = deedWords().value(word);
    keyword.isFailure = isFailureWord(keyword.single) || isFailureWord(word);
    return keyword;
}

double partIn(const QString& part, const Field& field) {
    if (field.words.contains(part))
        return 1;
    if (part.size() >= shortestBeginning)
        for (const QString& word : field.words)
            if (word.startsWith(part))
                return beginning;
    return part.size() >= shortestWithin && field.joined.contains(part) ? within : 0;
}

/// "setup.dmg": the name itself, or all its parts, or at least those before the extension.
double partsIn(const Keyword& keyword, const Field& field) {
    double found = 0;
    double ofStem = 0;
    for (qsizetype i = 0; i < keyword.parts.size(); ++i) {
        const double one = partIn(keyword.parts[i], field);
        if (one == 0 && i + 1 < keyword.parts.size())
            return 0;
        found += one;
        if (i + 1 < keyword.parts.size())
            ofStem += one;
    }
    return ofStem == 0 ? 0 : everyPart * found / double(keyword.parts.size());
}

double wordIn(const Keyword& keyword, const Field& field) {
    if (keyword.parts.size() < 2)
        return partIn(keyword.parts.isEmpty() ? keyword.single : keyword.parts.front(), field);
    return field.plain == keyword.plain ? wholeName : partsIn(keyword, field);
}

/// The folder that the file went to, as far as the user would name it.
QString destinationOf(const LogEntry& entry) {
    const QStringList path = entry.currentPath.value_or(QString()).split(u'/');
    return path.size() < 3 ? QString() : path[path.size() - 3] + u' ' + path[path.size() - 2];
}

struct Indexed {
    explicit Indexed(const LogEntry& logged)
        : entry(&logged)
        , name(logged.fileName)
        , newName(newNameOf(logged))
        , rule(logged.ruleName)
        , summary(logged.actionSummary)
        , destination(destinationOf(logged))
        , folder(logged.folderName)
        , kind(kindByExtension(name.plain.section(u'.', -1))) {}

    static QString newNameOf(const LogEntry& logged) {
        return logged.currentPath ? logged.currentPath->section(u'/', -1) : QString();
    }

    const LogEntry* entry;
    Field name, newName, rule, summary, destination, folder;
    std::optional<FileKind> kind;
};

double matchOf(const Keyword& keyword, const Indexed& log) {
    double best = inFileName * std::max(wordIn(keyword, log.name), wordIn(keyword, log.newName));
    best = std::max(best, inRuleName * wordIn(keyword, log.rule));
    best = std::max(best, inDestination * std::max(wordIn(keyword, log.summary),
                                                   wordIn(keyword, log.destination)));
    best = std::max(best, inFolderName * wordIn(keyword, log.folder));
    if (keyword.kind && log.kind == keyword.kind)
        best = std::max(best, asKind);
    if (!keyword.deed.isEmpty()) {
        const bool isDone = log.summary.plain.contains(keyword.deed);
        best = std::max(best, isDone ? asDeed : 0);
    }
    if (keyword.isFailure && log.entry->isError)
        best = std::max(best, inFileName);
    return best;
}

struct Scored {
    const LogEntry* entry;
    double score;
};

bool isNewer(const LogEntry* one, const LogEntry* other) {
    return one->date > other->date;
}

/// The scores of those that have any of the words.
std::vector<Scored> scored(const std::vector<Keyword>& keywords, const std::vector<LogEntry>& logs,
                           Timestamp now) {
    std::vector<Indexed> index;
    index.reserve(logs.size());
    for (const LogEntry& entry : logs)
        index.emplace_back(entry);

    std::vector<Scored> found;
    for (const LogEntry& entry : logs)
        found.push_back({.entry = &entry, .score = 0});
    for (const Keyword& keyword : keywords) {
        std::vector<double> matches;
        for (const Indexed& log : index)
            matches.push_back(matchOf(keyword, log));
        const auto count = double(std::ranges::count_if(matches, [](double m) { return m > 0; }));
        const double rarity = std::log((double(logs.size()) + 1) / (count + 1)) + 0.3;
        for (std::size_t i = 0; i < matches.size(); ++i)
            found[i].score += matches[i] * rarity;
    }
    std::erase_if(found, [](const Scored& one) { return one.score == 0; });
    for (Scored& one : found) {
        const std::chrono::duration<double, std::ratio<86400>> age = now - one.entry->date;
        one.score *= 1 + newness * std::exp2(-std::max(age.count(), 0.0) / daysToHalf);
    }
    return found;
}

void keepBest(std::vector<Scored>& found, bool wantsLatest) {
    double best = 0;
    for (const Scored& one : found)
        best = std::max(best, one.score);
    const double least = best * (wantsLatest ? latestOfBest : leastOfBest);
    std::erase_if(found, [&](const Scored& one) { return one.score < least; });
    std::ranges::stable_sort(found, [&](const Scored& one, const Scored& other) {
        if (!wantsLatest && one.score != other.score)
            return one.score > other.score;
        return isNewer(one.entry, other.entry);
    });
}

RelevantEntries newest(const std::vector<LogEntry>& logs, std::size_t limit) {
    std::vector<const LogEntry*> sorted;
    for (const LogEntry& entry : logs)
        sorted.push_back(&entry);
    std::ranges::stable_sort(sorted, isNewer);
    RelevantEntries chosen{.entries = {}, .matching = sorted.size()};
    for (std::size_t i = 0; i < std::min(limit, sorted.size()); ++i)
        chosen.entries.push_back(*sorted[i]);
    return chosen;
}

/// The nearest one for a moment that no entry can have, such as 900 years ago.
Timestamp momentOf(const QDateTime& moment) {
    using std::chrono::milliseconds;
    constexpr auto first = std::chrono::ceil<milliseconds>(Timestamp::min()).time_since_epoch();
    constexpr auto last = std::chrono::floor<milliseconds>(Timestamp::max()).time_since_epoch();
    return Timestamp(std::clamp(milliseconds(moment.toMSecsSinceEpoch()), first, last));
}

bool isWithin(const LogEntry& entry, const AskedSpan& span) {
    return (!span.from || entry.date >= momentOf(*span.from)) &&
           (!span.until || entry.date < momentOf(*span.until));
}

/// A name in double quotation marks is one thing to look for, whatever its words mean elsewhere.
std::vector<Keyword> takeQuoted(QString& question) {
    static const QRegularExpression quoted(u"[“”„\"«»]([^“”„\"«»]{2,200})[“”\"«»]"_s);
    std::vector<Keyword> keywords;
    for (auto found = quoted.match(question); found.hasMatch() && keywords.size() < mostQuoted;
         found = quoted.match(question)) {
        const QString name = plainText(found.captured(1)).trimmed();
        question.replace(found.capturedStart(), found.capturedLength(), u' ');
        if (Keyword keyword = keywordOf(name); !keyword.parts.isEmpty())
            keywords.push_back(std::move(keyword));
    }
    return keywords;
}

} // namespace

RelevantEntries relevantEntries(const QString& question, const std::vector<LogEntry>& logs,
                                const QDateTime& now, std::size_t limit) {
    QString unquoted = question;
    std::vector<Keyword> keywords = takeQuoted(unquoted);
    const TimeInQuestion time = timeInQuestion(questionWords(unquoted), now);
    for (const QString& word : time.otherWords)
        if (const bool isCount = time.wantsLatest && word.size() < 3 && word.toInt() > 0;
            !isCount && !isStopWord(word))
            keywords.push_back(keywordOf(word));

    std::vector<LogEntry> inSpan;
    for (const LogEntry& entry : logs)
        if (!time.span || isWithin(entry, *time.span))
            inSpan.push_back(entry);
    if (keywords.empty())
        return newest(inSpan, limit);

    std::vector<Scored> found = scored(keywords, inSpan, momentOf(now));
    if (found.empty() && time.span)
        found = scored(keywords, logs, momentOf(now));
    keepBest(found, time.wantsLatest);
    RelevantEntries chosen{.entries = {}, .matching = found.size()};
    for (std::size_t i = 0; i < std::min(limit, found.size()); ++i)
        chosen.entries.push_back(*found[i].entry);
    return chosen;
}

} // namespace quillon

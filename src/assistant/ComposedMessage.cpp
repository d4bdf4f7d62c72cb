#include "assistant/AskPrompts.h"
#include "assistant/PromptLine.h"
#include "assistant/QuestionWords.h"
#include "assistant/TokenEstimate.h"
#include "engine/RuleSummary.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// In bytes.
constexpr qsizetype longestQuestion = 1500;
constexpr qsizetype longestSummary = 240;
constexpr qsizetype longestDeed = 160;
constexpr qsizetype longestPlace = 160;

constexpr std::size_t firstEntries = 5;
constexpr std::size_t nextEntries = 10;
constexpr std::size_t firstConflicts = 2;

/// What goes into a message first when not all of it fits.
enum class Importance {
    firstEntry,
    aboutFolder, ///< the heading of a folder that an entry or the question is about
    conflict,
    aboutRule, ///< a rule of such a folder, by name
    nextEntry,
    aboutSentence, ///< what such a rule does
    furtherEntry,
    otherFolder,
    otherRule,
    otherSentence,
};

/// A line of the message, or an addition to the line before it.
struct Piece {
    Importance importance;
    QString text;
    std::size_t needs; ///< the piece that it can't stand without; itself when there is none
    bool isRule = false;
    bool isIn = false;
};

QString dateOf(const LogEntry& entry) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(entry.date).time_since_epoch();
    return QLocale::c().toString(QDateTime::fromSecsSinceEpoch(seconds.count()),
                                 u"dddd d MMMM yyyy, HH:mm");
}

/// The names of the last two folders on the way to the file: enough to find it, and not the whole
/// path, which names the user.
QString folderOf(const QString& path) {
    const QStringList names = path.section(u'/', 0, -2).split(u'/', Qt::SkipEmptyParts);
    return promptLine(names.last(std::min<qsizetype>(2, names.size())).join(u'/'), longestPlace);
}

QString lineOf(const LogEntry& entry) {
    QString line = u"- "_s + dateOf(entry) + u": “"_s + promptFileName(entry.fileName) +
                   u"” in "_s + promptName(entry.folderName) + u", rule “"_s +
                   promptName(entry.ruleName) + u"”: "_s +
                   promptLine(entry.actionSummary, longestDeed);
    if (entry.trashedPath) {
        line += u"; now in the Trash"_s;
    } else if (entry.currentPath && entry.currentPath != entry.originalPath) {
        line += u"; now in "_s + folderOf(*entry.currentPath);
        if (const QString name = entry.currentPath->section(u'/', -1); name != entry.fileName)
            line += u" as “"_s + promptFileName(name) + u'”';
    }
    return entry.isError ? line + u" (something went wrong)"_s : line;
}

/// The question within a third of the room.
QString questionWithin(const QString& question, std::size_t most) {
    qsizetype bytes = longestQuestion;
    QString line = promptLine(question, bytes);
    for (; estimatedTokens(line) > most / 3 && bytes > 3; bytes = bytes * 3 / 4)
        line = promptLine(question, bytes);
    return line;
}

class Composer {
public:
    Composer(const QString& question, const std::vector<LogEntry>& entries, std::size_t most,
             std::size_t matching)
        : most_(most)
        , question_(questionWithin(question, most))
        , plainQuestion_(plainText(question_))
        , entries_(entries)
        , matching_(std::max(matching, entries.size())) {}

    void addEntries() {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            add(activity_,
                i < firstEntries  ? Importance::firstEntry
                : i < nextEntries ? Importance::nextEntry
                                  : Importance::furtherEntry,
                u'\n' + lineOf(entries_[i]));
    }

    void addFolder(const WatchedFolder& folder, bool isOnlyOne) {
        const bool isAbout = isOnlyOne || isAskedAbout(folder);
        const std::size_t heading =
            add(rules_, isAbout ? Importance::aboutFolder : Importance::otherFolder,
                u'\n' + promptName(folder.name()) + u':');
        if (folder.rules.empty())
            add(rules_, isAbout ? Importance::aboutFolder : Importance::otherFolder,
                u"\n  (no rules)"_s, heading);
        for (std::size_t i = 0; i < folder.rules.size(); ++i) {
            const Rule& rule = folder.rules[i];
            const std::size_t name =
                add(rules_, isAbout ? Importance::aboutRule : Importance::otherRule,
                    u"\n  "_s + QString::number(i + 1) + u". "_s + promptName(rule.name) +
                        (rule.isEnabled ? u""_s : u" (off)"_s),
                    heading);
            rules_[name].isRule = true;
            add(rules_, isAbout ? Importance::aboutSentence : Importance::otherSentence,
                u": "_s + promptLine(summary(rule), longestSummary), name);
        }
    }

    void addConflicts(const std::vector<RuleConflict>& conflicts) {
        for (std::size_t i = 0; i < conflicts.size(); ++i)
            add(conflicts_, i < firstConflicts ? Importance::conflict : Importance::furtherEntry,
                conflicts[i].sentence() + u'\n');
    }

    QString message(bool hasFolders) {
        const QString ending = u"\n\nQuestion: "_s + question_;
        fill(most_ - std::min(most_, estimatedTokens(frame) + estimatedTokens(ending)));
        const QString activity = textOf(activity_);
        QString text =
            u"Activity:"_s + (activity.isEmpty() ? u"\n(no matching activity)"_s : activity);
        if (const auto shown = std::size_t(std::ranges::count(activity_, true, &Piece::isIn));
            shown > 0 && shown < matching_)
            text += u"\n(%1 of %2 matching entries)"_s.arg(QString::number(shown),
                                                           QString::number(matching_));
        text += u"\n\nRules:"_s + (hasFolders ? textOf(rules_) : u"\n(no folders)"_s);
        if (const auto left = std::ranges::count_if(
                rules_, [](const Piece& piece) { return piece.isRule && !piece.isIn; }))
            text += u"\n("_s + QString::number(left) + u" more rules are left out)"_s;
        if (const QString checked = textOf(conflicts_); !checked.isEmpty())
            text += u"\n\nChecked on this Mac:\n"_s + checked.chopped(1);
        return text + ending;
    }

private:
    /// All that stands around the pieces.
    static constexpr QStringView frame =
        u"Activity:\n(no matching activity)\n(25 of 100000 matching entries)\n\nRules:\n(no "
        u"folders)\n(100000 more rules are left "
        "out)\n\nChecked on this Mac:\n";

    static std::size_t add(std::vector<Piece>& pieces, Importance importance, const QString& text,
                           std::optional<std::size_t> needs = std::nullopt) {
        pieces.push_back(
            {.importance = importance, .text = text, .needs = needs.value_or(pieces.size())});
        return pieces.size() - 1;
    }

    [[nodiscard]] bool isAskedAbout(const WatchedFolder& folder) const {
        const auto isNamed = [&](const QString& name) {
            return !name.isEmpty() && plainQuestion_.contains(plainText(name));
        };
        return isNamed(folder.name()) ||
               std::ranges::any_of(folder.rules,
                                   [&](const Rule& rule) { return isNamed(rule.name); }) ||
               std::ranges::any_of(
                   entries_, [&](const LogEntry& entry) { return entry.folderID == folder.id; });
    }

    void fill(std::size_t room) {
        struct Place {
            std::vector<Piece>* pieces;
            std::size_t at;
            [[nodiscard]] Piece& piece() const { return (*pieces)[at]; }
        };
        std::vector<Place> places;
        for (std::vector<Piece>* pieces : {&activity_, &rules_, &conflicts_})
            for (std::size_t i = 0; i < pieces->size(); ++i)
                places.push_back({.pieces = pieces, .at = i});
        std::ranges::stable_sort(places, {},
                                 [](const Place& place) { return place.piece().importance; });
        for (const Place& place : places) {
            Piece& piece = place.piece();
            const bool mayStand = piece.needs == place.at || (*place.pieces)[piece.needs].isIn;
            const std::size_t tokens = estimatedTokens(piece.text);
            if (!mayStand || tokens > room)
                continue;
            piece.isIn = true;
            room -= tokens;
        }
    }

    static QString textOf(const std::vector<Piece>& pieces) {
        QString text;
        for (const Piece& piece : pieces)
            if (piece.isIn)
                text += piece.text;
        return text;
    }

    const std::size_t most_;
    const QString question_;
    const QString plainQuestion_;
    const std::vector<LogEntry>& entries_;
    const std::size_t matching_;
    std::vector<Piece> activity_, rules_, conflicts_;
};

} // namespace

QString compose(const QString& question, const std::vector<LogEntry>& entries,
                const std::vector<WatchedFolder>& folders,
                const std::vector<RuleConflict>& conflicts, MessageSize most,
                std::size_t matching) {
    Composer composer(question, entries, std::size_t(most), matching);
    composer.addEntries();
    for (const WatchedFolder& folder : folders)
        composer.addFolder(folder, folders.size() == 1);
    composer.addConflicts(conflicts);
    return composer.message(!folders.empty());
}

} // namespace quillon

#include "assistant/RuleConflicts.h"

#include "assistant/DobbinJudge.h"
#include "assistant/PromptLine.h"
#include "engine/CompiledRule.h"
#include "engine/FileFacts.h"
#include "engine/KindClassifier.h"
#include "platform/FileNames.h"
#include "platform/FileTags.h"
#include "platform/Provenance.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t mostEntries = 25;
constexpr std::size_t mostConflicts = 25;

/// The tags of a file that has moved on, asked for under its old path.
class TagsElsewhere final : public FileTags {
public:
    TagsElsewhere(const FileTags& tags, std::string place)
        : tags_(tags), place_(std::move(place)) {}

    [[nodiscard]] Expected<QStringList> tags(const std::string&) const override {
        return tags_.tags(place_);
    }
    [[nodiscard]] Expected<bool> add(const std::string&, const QString&, int) override {
        return refuse();
    }
    [[nodiscard]] Expected<bool> remove(const std::string&, const QString&) override {
        return refuse();
    }

private:
    static std::unexpected<Error> refuse() {
        return failure(ErrorKind::unsupported, u"the file is only looked at"_s);
    }

    const FileTags& tags_;
    const std::string place_;
};

class OriginElsewhere final : public Provenance {
public:
    OriginElsewhere(const Provenance& origins, std::string place)
        : origins_(origins), place_(std::move(place)) {}

    [[nodiscard]] QStringList whereFrom(const std::string&) const override {
        return origins_.whereFrom(place_);
    }

private:
    const Provenance& origins_;
    const std::string place_;
};

/// What Dobbin has said of the file, wherever it lay then.
class KnownAnswers final : public FileJudge {
public:
    KnownAnswers(const DobbinJudge& judge, std::string place, const FileStatus& status)
        : judge_(judge), place_(std::move(place)), status_(status) {}

    [[nodiscard]] Verdict verdict(const std::string& path, const QString& question) override {
        const Verdict here = judge_.knownVerdict(place_, status_, question);
        return here == Verdict::unknown ? judge_.knownVerdict(path, status_, question) : here;
    }
    /// Whether the rule would take the file hangs on its conditions alone.
    [[nodiscard]] std::optional<QString> smartName(const std::string&) override { return u""_s; }
    void fileMoved(const std::string&, const FileStatus&, const std::string&) override {}
    [[nodiscard]] bool isWaiting(const std::string&) override { return false; }

private:
    const DobbinJudge& judge_;
    const std::string place_;
    const FileStatus status_;
};

/// The path below the folder; nothing for one that is elsewhere.
std::optional<QString> pathBelow(const WatchedFolder& folder, const QString& path) {
    const QString start = folder.path.endsWith(u'/') ? folder.path : folder.path + u'/';
    return path.size() > start.size() && path.startsWith(start)
               ? std::optional(path.sliced(start.size()))
               : std::nullopt;
}

/// Whether a run of the folder looks at the path.
bool isSeenBy(const WatchedFolder& folder, const QString& path) {
    const auto below = pathBelow(folder, path);
    return below && (folder.isRecursive || !below->contains(u'/'));
}

/// Where the file lies now that it has left the folder; nothing when it has not.
std::optional<QString> placeAway(const LogEntry& entry, const WatchedFolder& folder) {
    if (entry.trashedPath)
        return entry.trashedPath;
    const bool isAway =
        entry.undoable && entry.currentPath && !isSeenBy(folder, *entry.currentPath);
    return isAway ? entry.currentPath : std::nullopt;
}

bool isAboutName(const Condition& condition) {
    return condition.attribute == ConditionAttribute::name ||
           condition.attribute == ConditionAttribute::fullName ||
           condition.attribute == ConditionAttribute::extension;
}

bool changesTags(const Rule& rule) {
    return std::ranges::any_of(rule.actions, [](const RuleAction& action) {
        return action.type == ActionType::addTag || action.type == ActionType::removeTag;
    });
}

bool asksForTags(const Rule& rule) {
    return std::ranges::find(rule.conditions, ConditionAttribute::tag, &Condition::attribute) !=
           rule.conditions.end();
}

class ConflictSearch {
public:
    ConflictSearch(const std::vector<WatchedFolder>& folders, const Platform& platform,
                   const DobbinJudge& judge)
        : folders_(folders), platform_(platform), judge_(judge), kinds_(platform.contentTypes) {}

    void look(const LogEntry& entry) {
        const auto folder = std::ranges::find_if(folders_, [&](const WatchedFolder& one) {
            return entry.folderID && one.id == *entry.folderID;
        });
        if (folder == folders_.end() || !entry.originalPath ||
            !isSeenBy(*folder, *entry.originalPath))
            return;
        const auto place = placeAway(entry, *folder);
        const auto earlier = std::ranges::find(folder->rules, entry.ruleName, &Rule::name);
        // Of two rules of one name it can't be told which one acted.
        if (!place || std::ranges::count(folder->rules, entry.ruleName, &Rule::name) != 1 ||
            !earlier->isEnabled)
            return;
        const auto status = platform_.fileSystem.status(place->toStdString());
        const auto first = std::size_t(earlier - folder->rules.begin()) + 1;
        for (std::size_t i = first; i < folder->rules.size() && found.size() < mostConflicts; ++i)
            if (const Rule& later = folder->rules[i];
                later.isEnabled && competes(*earlier, later, status.has_value()) &&
                matches(compiled(*folder)[i], entry, *folder, place->toStdString(),
                        status.value_or(FileStatus())))
                add(entry, *folder, *earlier, later);
    }

    std::vector<RuleConflict> found;

private:
    /// Whether it can be told what the later rule makes of the file.
    static bool competes(const Rule& earlier, const Rule& later, bool isThere) {
        if (later.actions.empty() || (changesTags(earlier) && asksForTags(later)))
            return false;
        return isThere || std::ranges::all_of(later.conditions, isAboutName);
    }

    bool matches(const CompiledRule& rule, const LogEntry& entry, const WatchedFolder& folder,
                 const std::string& place, const FileStatus& status) {
        TagsElsewhere tags(platform_.tags, place);
        OriginElsewhere origins(platform_.provenance, place);
        KnownAnswers answers(judge_, place, status);
        const Platform elsewhere{.fileSystem = platform_.fileSystem,
                                 .trash = platform_.trash,
                                 .tags = tags,
                                 .provenance = origins,
                                 .cloudFiles = platform_.cloudFiles,
                                 .contentTypes = platform_.contentTypes,
                                 .processes = platform_.processes,
                                 .archives = platform_.archives,
                                 .clock = platform_.clock,
                                 .folders = platform_.folders};
        const std::string path = folder.path.toStdString();
        const ListedFile file{.path = pathBelow(folder, *entry.originalPath)->toStdString(),
                              .status = status};
        FileFacts facts(elsewhere, kinds_, path, file);
        MatchContext context{.file = facts, .judge = answers, .now = entry.date};
        return rule.match(context) == MatchOutcome::matches;
    }

    const std::vector<CompiledRule>& compiled(const WatchedFolder& folder) {
        std::vector<CompiledRule>& rules = compiled_[folder.id];
        if (rules.empty())
            for (const Rule& rule : folder.rules)
                rules.emplace_back(rule);
        return rules;
    }

    void add(const LogEntry& entry, const WatchedFolder& folder, const Rule& earlier,
             const Rule& later) {
        const RuleConflict conflict{.fileName = entry.fileName,
                                    .folderID = folder.id,
                                    .folderName = folder.name(),
                                    .earlierID = earlier.id,
                                    .earlierName = earlier.name,
                                    .laterID = later.id,
                                    .laterName = later.name};
        if (std::ranges::find(found, conflict) == found.end())
            found.push_back(conflict);
    }

    const std::vector<WatchedFolder>& folders_;
    const Platform& platform_;
    const DobbinJudge& judge_;
    KindClassifier kinds_;
    std::map<QUuid, std::vector<CompiledRule>> compiled_;
};

} // namespace

QString RuleConflict::sentence() const {
    const QString later = promptName(laterName);
    const QString earlier = promptName(earlierName);
    return promptFileName(fileName) + u" also matches “"_s + later + u"”, but “"_s + earlier +
           u"” comes first in "_s + promptName(folderName) + u" and moved it, so “"_s + later +
           u"” never saw it. Moving “"_s + later + u"” above “"_s + earlier +
           u"” would fix that."_s;
}

std::vector<RuleConflict> conflicts(const std::vector<LogEntry>& entries,
                                    const std::vector<WatchedFolder>& folders,
                                    const Platform& platform, const DobbinJudge& judge) {
    ConflictSearch search(folders, platform, judge);
    for (std::size_t i = 0; i < std::min(mostEntries, entries.size()); ++i)
        search.look(entries[i]);
    return std::move(search.found);
}

} // namespace quillon

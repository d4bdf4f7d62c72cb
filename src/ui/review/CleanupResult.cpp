#include "ui/review/CleanupResult.h"

#include "ui/CountTexts.h"
#include "ui/ShownName.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CleanupResult)
};

struct RunCount {
    std::size_t filed = 0;
    std::size_t failed = 0;
};

RunCount countOf(const RunResult& run) {
    RunCount count;
    for (const LogEntry& entry : run.entries)
        ++(entry.isError ? count.failed : count.filed);
    return count;
}

/// "4 moved to Trash"
QString doneText(const RuleAction& action, std::size_t number) {
    switch (action.type) {
    case ActionType::trash:
        return Texts::tr("%L1 moved to Trash").arg(number);
    case ActionType::move:
        return Texts::tr("%L1 moved to %2", "a number of files, a folder")
            .arg(number)
            .arg(action.destination.value_or(QString()).section(u'/', -1));
    case ActionType::unpack:
        return Texts::tr("%L1 unpacked").arg(number);
    case ActionType::sortIntoSubfolder:
        return Texts::tr("%L1 sorted by kind").arg(number);
    default:
        return fileCount(number);
    }
}

QString titleText(const CleanupResult& result, const RunResult& run, std::size_t left,
                  const QString& folder) {
    if (run.stopped || run.interrupted)
        return Texts::tr("Stopped early");
    if (result.filed == 0)
        return Texts::tr("%1 is as it was", "a folder").arg(folder);
    return left == 0 ? Texts::tr("%1 is tidy").arg(folder) : Texts::tr("%1 is tidier").arg(folder);
}

QString sentenceText(const RunCount& count, std::size_t left, const RunResult& run) {
    if (run.stopped)
        return run.stopped->message;
    QStringList parts;
    if (count.filed > 0)
        parts.append(Texts::tr("%1 filed", "a number of files").arg(fileCount(count.filed)));
    if (count.failed > 0)
        parts.append(Texts::tr("%L1 couldn’t be moved").arg(count.failed));
    if (left > 0)
        parts.append(run.interrupted
                         ? Texts::tr("%L1 left where they were").arg(left)
                         : Texts::tr("%L1 left alone because they changed meanwhile").arg(left));
    return count.filed == 0 && count.failed == 0
               ? Texts::tr("Nothing was moved.")
               : Texts::tr("%1.", "what was done").arg(parts.join(u", "_s));
}

} // namespace

QString recipeIcon(const QString& recipeID) {
    static const QHash<QString, QString> icons{{u"old-installers"_s, u"package"_s},
                                               {u"stale-files"_s, u"view-history"_s},
                                               {u"screenshots"_s, u"camera-photo"_s},
                                               {u"loose-archives"_s, u"archive-insert"_s},
                                               {u"sort-by-kind"_s, u"view-list-icons"_s}};
    return icons.value(recipeID, u"edit-clear-all"_s);
}

CleanupResult cleanupResult(const RunResult& run, const CleanupChoice& choice,
                            const std::vector<Rule>& rules, const QString& folder,
                            std::size_t ticked) {
    const RunCount count = countOf(run);
    const std::size_t left = ticked - std::min(ticked, run.entries.size());
    CleanupResult result{.filed = count.filed};
    result.title = titleText(result, run, left, folder);
    result.sentence = sentenceText(count, left, run);
    std::size_t next = 0;
    for (const CleanupRecipe& recipe : choice.recipes) {
        if (!choice.isChosen(recipe) || next >= rules.size())
            continue;
        const Rule& rule = rules[next++];
        const auto done = std::size_t(std::ranges::count_if(run.entries, [&](const auto& entry) {
            return !entry.isError && entry.ruleName == rule.name;
        }));
        if (done > 0)
            result.rows.push_back({.key = recipe.id,
                                   .title = recipe.title,
                                   .iconName = recipeIcon(recipe.id),
                                   .text = doneText(rule.actions.front(), done)});
    }
    for (const LogEntry& entry : run.entries) {
        result.canUndo = result.canUndo || entry.canUndo();
        if (entry.isError)
            result.rows.push_back({.key = entry.id.toString(),
                                   .title = shownName(entry.fileName),
                                   .text = entry.actionSummary,
                                   .isError = true});
    }
    return result;
}

} // namespace quillon

#include "cli/LineBuffer.h"
#include "cli/NamedFolder.h"
#include "cli/NamedRule.h"
#include "cli/OpenFolder.h"
#include "cli/OpenStore.h"
#include "cli/Verbs.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Each rule once.
Chosen<std::vector<Rule>> rulesMeant(const std::vector<std::string>& given,
                                     const std::vector<Rule>& rules) {
    std::vector<Rule> found;
    for (const std::string& text : given) {
        auto rule = ruleMeant(text, rules);
        if (!rule)
            return std::unexpected(rule.error());
        if (std::ranges::find(found, rule->id, &Rule::id) == found.end())
            found.push_back(std::move(*rule));
    }
    return found;
}

/// Changes each of the rules that are meant and prints a sentence a rule.
ExitCode
changeEach(const RuleOptions& options, const Console& console, Services& services,
           const std::function<void(AppStore&, const QUuid& ruleID, const QUuid& folderID)>& change,
           const QString& sentence) {
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    const auto rules = rulesMeant(options.rules, open->folder.rules);
    if (!rules)
        return sayRefusal(rules.error(), console);
    open->store.call([&](AppStore& store) {
        for (const Rule& rule : *rules)
            change(store, rule.id, open->folder.id);
    });
    LineBuffer lines(console.out, console.colored);
    for (const Rule& rule : *rules)
        lines.add(sentence.arg(rule.name)).endLine();
    return sayWhetherSaved(open->store, console);
}

ExitCode switchEach(bool isOn, const RuleOptions& options, const Console& console,
                    Services& services) {
    return changeEach(
        options, console, services,
        [isOn](AppStore& store, const QUuid& rule, const QUuid& folder) {
            store.setRuleEnabled(isOn, rule, folder);
        },
        isOn ? u"“%1” is on."_s : u"“%1” is off."_s);
}

std::size_t positionOf(const std::vector<Rule>& rules, const QUuid& ruleID) {
    return std::size_t(std::ranges::find(rules, ruleID, &Rule::id) - rules.begin()) + 1;
}

std::vector<QUuid> movedTo(const std::vector<Rule>& rules, const QUuid& ruleID,
                           std::size_t position) {
    std::vector<QUuid> order;
    for (const Rule& rule : rules)
        if (rule.id != ruleID)
            order.push_back(rule.id);
    order.insert(order.begin() + std::ptrdiff_t(position - 1), ruleID);
    return order;
}

using Move = std::function<void(AppStore&)>;

Chosen<Move> moveMeant(const RuleMoveOptions& options, const WatchedFolder& folder,
                       const QUuid& ruleID) {
    if (options.offset)
        return
            [=, id = folder.id](AppStore& store) { store.moveRuleBy(*options.offset, ruleID, id); };
    if (options.position) {
        const int last = int(folder.rules.size());
        if (*options.position < 1 || *options.position > last)
            return refusal(ExitCode::usage,
                           u"%1 is no place in the list; there are 1 to %2"_s.arg(
                               QString::number(*options.position), QString::number(last)));
        return
            [id = folder.id, order = movedTo(folder.rules, ruleID, std::size_t(*options.position))](
                AppStore& store) { store.reorderRules(id, order); };
    }
    const auto other = ruleMeant(options.before, folder.rules);
    if (!other)
        return std::unexpected(other.error());
    return [=, id = folder.id, otherID = other->id](AppStore& store) {
        store.moveRuleBefore(otherID, ruleID, id);
    };
}

} // namespace

ExitCode ruleRemoveCommand(const RuleOptions& options, const Console& console, Services& services) {
    return changeEach(
        options, console, services,
        [](AppStore& store, const QUuid& rule, const QUuid& folder) {
            store.deleteRule(rule, folder);
        },
        u"“%1” is removed."_s);
}

ExitCode ruleEnableCommand(const RuleOptions& options, const Console& console, Services& services) {
    return switchEach(true, options, console, services);
}

ExitCode ruleDisableCommand(const RuleOptions& options, const Console& console,
                            Services& services) {
    return switchEach(false, options, console, services);
}

ExitCode ruleDuplicateCommand(const RuleOptions& options, const Console& console,
                              Services& services) {
    return changeEach(
        options, console, services,
        [](AppStore& store, const QUuid& rule, const QUuid& folder) {
            store.duplicateRule(rule, folder);
        },
        u"A copy of “%1” stands below it."_s);
}

ExitCode ruleCopyCommand(const RuleCopyOptions& options, const Console& console,
                         Services& services) {
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    const auto rule = ruleMeant(options.rule, open->folder.rules);
    if (!rule)
        return sayRefusal(rule.error(), console);
    const auto folders = open->store.call([](AppStore& store) { return store.folders(); });
    const auto target = watchedFolderAt(options.target, folders, console, services);
    if (!target)
        return sayRefusal(target.error(), console);
    return changeAndRun(
        open->store, [&](AppStore& store) { store.copyRule(rule->id, target->id); },
        {u"“%1” is copied to %2."_s.arg(rule->name, target->name())}, options.json, console);
}

ExitCode ruleMoveCommand(const RuleMoveOptions& options, const Console& console,
                         Services& services) {
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    const auto rule = ruleMeant(options.rule, open->folder.rules);
    if (!rule)
        return sayRefusal(rule.error(), console);
    const auto move = moveMeant(options, open->folder, rule->id);
    if (!move)
        return sayRefusal(move.error(), console);
    const auto moved = open->store.call([&](AppStore& store) {
        (*move)(store);
        const WatchedFolder* const folder = store.folder(open->folder.id);
        return folder ? folder->rules : std::vector<Rule>();
    });
    LineBuffer lines(console.out, console.colored);
    lines
        .add(u"“%1” is number %2 of %3."_s.arg(rule->name,
                                               QString::number(positionOf(moved, rule->id)),
                                               QString::number(moved.size())))
        .endLine();
    return sayWhetherSaved(open->store, console);
}

} // namespace quillon

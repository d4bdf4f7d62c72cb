#include "cli/AddedRules.h"
#include "cli/Inputs.h"
#include "cli/Verbs.h"
#include "engine/RulePhrases.h"
#include "engine/RuleSummary.h"

namespace quillon {
namespace {

Chosen<Rule> ruleInWords(const RuleAddOptions& options, const QString& folder) {
    Rule rule{.isEnabled = !options.isOff,
              .matchMode = options.matchMode,
              .conditions = {},
              .actions = {}};
    for (const std::string& words : options.conditions) {
        const auto condition = conditionFromWords(QString::fromStdString(words));
        if (!condition)
            return refusal(ExitCode::usage, condition.error().message);
        rule.conditions.push_back(*condition);
    }
    for (const std::string& words : options.actions) {
        const auto action = actionFromWords(QString::fromStdString(words), folder);
        if (!action)
            return refusal(ExitCode::usage, action.error().message);
        rule.actions.push_back(*action);
    }
    rule.name = options.name.empty() ? summaryText(rule.actions.front())
                                     : QString::fromStdString(options.name);
    return rule;
}

} // namespace

ExitCode ruleAddCommand(const RuleAddOptions& options, const Console& console, Services& services) {
    // Before the store is opened, which keeps others from it: a pipe may be slow.
    Expected<std::vector<Rule>> rules;
    if (!options.file.empty())
        rules = readRules(options.file, console, services);
    if (!rules) {
        console.say(rules.error());
        return ExitCode::unreadable;
    }
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    if (options.file.empty()) {
        const auto rule = options.preset.empty() ? ruleInWords(options, open->folder.path)
                                                 : presetRule(options.preset);
        if (!rule)
            return sayRefusal(rule.error(), console);
        rules->push_back(*rule);
    }
    if (options.isOff)
        for (Rule& rule : *rules)
            rule.isEnabled = false;
    return addRulesAndRun(*open, std::move(*rules),
                          options.preset.empty() ? RuleSource::manual : RuleSource::preset,
                          options.json, console);
}

} // namespace quillon

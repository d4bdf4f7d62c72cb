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

/// From whichever of the three ways was chosen.
Chosen<std::vector<Rule>> rulesToAdd(const RuleAddOptions& options, const QString& folder,
                                     const Console& console, Services& services) {
    std::vector<Rule> rules;
    if (!options.file.empty()) {
        auto read = readRules(options.file, console, services);
        if (!read)
            return refusal(ExitCode::unreadable, read.error().message);
        rules = std::move(*read);
    } else {
        const auto rule =
            options.preset.empty() ? ruleInWords(options, folder) : presetRule(options.preset);
        if (!rule)
            return std::unexpected(rule.error());
        rules.push_back(*rule);
    }
    if (options.isOff)
        for (Rule& rule : rules)
            rule.isEnabled = false;
    return rules;
}

} // namespace

ExitCode ruleAddCommand(const RuleAddOptions& options, const Console& console, Services& services) {
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    auto rules = rulesToAdd(options, open->folder.path, console, services);
    if (!rules)
        return sayRefusal(rules.error(), console);
    return addRulesAndRun(*open, std::move(*rules),
                          options.preset.empty() ? RuleSource::manual : RuleSource::preset,
                          options.json, console);
}

} // namespace quillon

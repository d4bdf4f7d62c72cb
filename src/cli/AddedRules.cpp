#include "cli/AddedRules.h"

#include "cli/UnknownWord.h"
#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "model/RulePresets.h"
#include "store/RuleEdits.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

ExitCode addRulesAndRun(const OpenFolder& open, std::vector<Rule> rules, RuleSource source,
                        bool json, const Console& console) {
    QStringList sentences;
    for (Rule& rule : rules) {
        rule = freshCopy(std::move(rule));
        sentences.append(
            u"Added “%1” to %2: %3"_s.arg(rule.name, open.folder.name(), summary(rule)));
        for (const QString& warning : validationWarnings(rule))
            sentences.append(u"  warning: "_s + warning);
    }
    return changeAndRun(
        open.store, [&](AppStore& store) { store.addRules(rules, open.folder.id, source); },
        sentences, json, console);
}

Chosen<Rule> presetRule(const std::string& title) {
    const QString text = QString::fromStdString(title);
    std::vector<std::string> titles;
    for (const Preset& preset : rulePresets()) {
        if (preset.title.compare(text, Qt::CaseInsensitive) == 0)
            return preset.rule;
        titles.push_back(preset.title.toStdString());
    }
    return unknownWord(title, "a ready-made rule", titles);
}

} // namespace quillon

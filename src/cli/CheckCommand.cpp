#include "cli/Inputs.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/Verbs.h"
#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void printChecks(const std::vector<Rule>& rules, std::ostream& out) {
    JsonStream json;
    json.beginList();
    for (const Rule& rule : rules) {
        json.beginObject().key("name").text(rule.name).key("summary").text(summary(rule));
        json.key("warnings");
        writeTexts(json, validationWarnings(rule));
        json.endObject();
        passOn(json, out);
    }
    json.endList();
    finish(json, out);
}

void printText(const std::vector<Rule>& rules, const Console& console) {
    std::size_t flawed = 0;
    LineBuffer lines(console.out, console.colored);
    for (const Rule& rule : rules) {
        lines.add(rule.name, LineBuffer::Style::strong);
        if (!rule.isEnabled)
            lines.add(u" (off)"_s, LineBuffer::Style::faint);
        lines.endLine();
        lines.add(u"  "_s).add(summary(rule)).endLine();
        const QStringList warnings = validationWarnings(rule);
        for (const QString& warning : warnings)
            lines.add(u"  "_s).add(u"warning: "_s + warning, LineBuffer::Style::bad).endLine();
        flawed += warnings.isEmpty() ? 0 : 1;
    }
    if (rules.empty())
        return;
    lines.endLine();
    lines
        .add(u"%1, %2 with warnings."_s.arg(counted(rules.size(), u"rule"_s),
                                            flawed == 0 ? u"none"_s : QString::number(flawed)))
        .endLine();
}

} // namespace

ExitCode checkCommand(const CheckOptions& options, const Console& console, Services& services) {
    const auto rules = readRules(options.rules, console, services);
    if (!rules) {
        console.say(rules.error());
        return ExitCode::unreadable;
    }
    if (rules->empty())
        console.say(u"There are no rules, so there is nothing to do"_s);
    if (options.json)
        printChecks(*rules, console.out);
    else
        printText(*rules, console);
    return ExitCode::done;
}

} // namespace quillon

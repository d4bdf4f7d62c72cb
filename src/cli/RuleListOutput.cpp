#include "cli/RuleListOutput.h"

#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void printJson(const std::vector<Rule>& rules, std::ostream& out) {
    JsonStream json;
    json.beginList();
    std::int64_t number = 0;
    for (const Rule& rule : rules) {
        json.beginObject().key("number").integer(++number).key("id").id(rule.id);
        json.key("name").text(rule.name).key("isEnabled").truth(rule.isEnabled);
        json.key("summary").text(summary(rule)).key("warnings");
        writeTexts(json, validationWarnings(rule));
        json.endObject();
        passOn(json, out);
    }
    json.endList();
    finish(json, out);
}

void printText(const std::vector<Rule>& rules, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    if (rules.empty())
        lines.add(u"The folder has no rules yet."_s).endLine();
    const qsizetype digits = QString::number(rules.size()).size();
    std::size_t number = 0;
    for (const Rule& rule : rules) {
        lines.add(QString::number(++number).rightJustified(digits), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(rule.name, LineBuffer::Style::strong);
        if (!rule.isEnabled)
            lines.add(u" (off)"_s, LineBuffer::Style::faint);
        lines.endLine();
        const QString margin(digits + 2, u' ');
        lines.add(margin).add(summary(rule)).endLine();
        for (const QString& warning : validationWarnings(rule))
            lines.add(margin).add(u"warning: "_s + warning, LineBuffer::Style::bad).endLine();
    }
}

} // namespace

void listRules(const std::vector<Rule>& rules, bool json, const Console& console) {
    if (json)
        printJson(rules, console.out);
    else
        printText(rules, console);
}

} // namespace quillon

#include "cli/AddedRules.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/Verbs.h"
#include "engine/RuleSummary.h"
#include "model/RulePresets.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void printJson(const std::vector<Preset>& presets, std::ostream& out) {
    JsonStream json;
    json.beginList();
    for (const Preset& preset : presets) {
        json.beginObject().key("title").text(preset.title);
        json.key("description").text(preset.description);
        json.key("summary").text(summary(preset.rule)).endObject();
    }
    json.endList();
    finish(json, out);
}

void printText(const std::vector<Preset>& presets, const Console& console) {
    ColumnWidth titles;
    for (const Preset& preset : presets)
        titles.fit(preset.title);
    LineBuffer lines(console.out, console.colored);
    for (const Preset& preset : presets)
        lines.add(preset.title, LineBuffer::Style::strong, titles.columns())
            .add(u"  "_s + preset.description)
            .endLine();
}

} // namespace

ExitCode presetListCommand(const PlainOptions& options, const Console& console,
                           Services& /*services*/) {
    if (options.json)
        printJson(rulePresets(), console.out);
    else
        printText(rulePresets(), console);
    return ExitCode::done;
}

ExitCode presetAddCommand(const PresetAddOptions& options, const Console& console,
                          Services& services) {
    std::vector<Rule> rules;
    for (const std::string& title : options.presets) {
        const auto rule = presetRule(title);
        if (!rule)
            return sayRefusal(rule.error(), console);
        rules.push_back(*rule);
    }
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    return addRulesAndRun(*open, std::move(rules), RuleSource::preset, options.json, console);
}

} // namespace quillon

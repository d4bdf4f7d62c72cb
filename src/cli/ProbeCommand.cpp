#include "cli/Inputs.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/ProgressBar.h"
#include "cli/Verbs.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct ProbedRule {
    QString name;
    MatchProbe probe;
};

void printJson(const std::vector<ProbedRule>& rules, std::ostream& out) {
    JsonStream json;
    json.beginList();
    for (const auto& [name, probe] : rules) {
        json.beginObject().key("rule").text(name);
        json.key("tested").integer(std::int64_t(probe.tested)).key("matches");
        writeTexts(json, probe.matches);
        json.endObject();
        passOn(json, out);
    }
    json.endList();
    finish(json, out);
}

void printText(const std::vector<ProbedRule>& rules, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    for (const auto& [name, probe] : rules) {
        lines.add(name, LineBuffer::Style::strong)
            .add(u": %1 of %2"_s.arg(
                probe.matches.isEmpty() ? u"none"_s : QString::number(probe.matches.size()),
                counted(probe.tested, u"file"_s)))
            .endLine();
        for (const QString& match : probe.matches)
            lines.add(u"  "_s).add(match).endLine();
    }
}

} // namespace

ExitCode probeCommand(const FolderOptions& options, const Console& console, Services& services) {
    const auto input = readInput(options, console, services);
    if (!input) {
        console.say(input.error());
        return ExitCode::unreadable;
    }
    const RuleEngine engine = services.engine(input->settings);
    std::vector<ProbedRule> probed;
    {
        ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
        const std::size_t count = input->ready.files.size();
        for (const Rule& rule : input->rules) {
            bar.update(probed.size() * count, input->rules.size() * count);
            probed.push_back({rule.name, engine.probe(rule, input->ready)});
        }
    }
    if (options.json)
        printJson(probed, console.out);
    else
        printText(probed, console);
    return ExitCode::done;
}

} // namespace quillon

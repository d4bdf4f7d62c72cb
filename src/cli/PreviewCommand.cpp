#include "cli/Inputs.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/ProgressBar.h"
#include "cli/Totals.h"
#include "cli/Verbs.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void printJson(const ReadyFiles& ready, const std::vector<PreviewItem>& items, std::ostream& out) {
    JsonStream json;
    json.beginObject();
    json.key("tested").integer(std::int64_t(ready.files.size()));
    json.key("deferred").integer(std::int64_t(ready.deferred));
    json.key("items").beginList();
    for (const PreviewItem& item : items) {
        json.beginObject().key("fileName").text(item.fileName);
        json.key("ruleName").text(item.ruleName).key("actions");
        writeTexts(json, item.actions);
        json.endObject();
        passOn(json, out);
    }
    json.endList().endObject();
    finish(json, out);
}

void printText(const ReadyFiles& ready, const std::vector<PreviewItem>& items,
               const Console& console) {
    ColumnWidth names;
    ColumnWidth rules;
    for (const PreviewItem& item : items) {
        names.fit(item.fileName);
        rules.fit(item.ruleName);
    }
    LineBuffer lines(console.out, console.colored);
    for (const PreviewItem& item : items)
        lines.add(item.fileName, LineBuffer::Style::plain, names.columns())
            .add(u"  "_s)
            .add(item.ruleName, LineBuffer::Style::faint, rules.columns())
            .add(u"  "_s)
            .add(item.actions.join(u", "_s))
            .endLine();
    if (!items.empty())
        lines.endLine();
    Totals totals(
        u"Would tidy %1 of %2"_s.arg(items.empty() ? u"none"_s : QString::number(items.size()),
                                     counted(ready.files.size(), u"file"_s)));
    totals.addLeftAlone(ready);
    lines.add(totals.sentence()).endLine();
}

} // namespace

ExitCode previewCommand(const FolderOptions& options, const Console& console, Services& services) {
    const auto input = readInput(options, console, services);
    if (!input) {
        console.say(input.error());
        return ExitCode::unreadable;
    }
    std::vector<PreviewItem> items;
    {
        ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
        items = services.engine(input->request.settings)
                    .preview(input->rules, input->ready,
                             [&](std::size_t done, std::size_t total) { bar.update(done, total); });
    }
    if (options.json)
        printJson(input->ready, items, console.out);
    else
        printText(input->ready, items, console);
    return ExitCode::done;
}

} // namespace quillon

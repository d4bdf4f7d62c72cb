#include "cli/PreviewOutput.h"

#include "cli/JsonOutput.h"
#include "cli/Totals.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

void addPreview(const ReadyFiles& ready, const std::vector<PreviewItem>& items, LineBuffer& lines) {
    ColumnWidth names;
    ColumnWidth rules;
    for (const PreviewItem& item : items) {
        names.fit(item.fileName);
        rules.fit(item.ruleName);
    }
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
    totals.addLeftAlone(ready.deferred, ready.skippedNames);
    lines.add(totals.sentence()).endLine();
}

void writePreview(JsonStream& json, const ReadyFiles& ready, const std::vector<PreviewItem>& items,
                  std::ostream& out) {
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
    json.endList();
}

} // namespace quillon

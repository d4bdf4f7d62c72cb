#include "cli/DraftOutput.h"

#include "cli/JsonOutput.h"
#include "engine/RuleSummary.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostNames = 5;

/// "a.pdf, b.pdf and 3 more"
QString someOf(const QStringList& names) {
    const QString shown = names.first(std::min(names.size(), mostNames)).join(u", "_s);
    return names.size() <= mostNames
               ? shown
               : u"%1 and %2 more"_s.arg(shown, QString::number(names.size() - mostNames));
}

void addNames(LineBuffer& lines, const QString& deed, const QStringList& names,
              std::size_t tested) {
    const QString amount = names.isEmpty() ? u"none"_s : QString::number(names.size());
    lines.add(u"%1 %2 of %3"_s.arg(deed, amount, counted(tested, u"file"_s)));
    if (!names.isEmpty())
        lines.add(u": "_s + someOf(names));
    lines.endLine();
}

void addIndented(LineBuffer& lines, const QString& text,
                 LineBuffer::Style style = LineBuffer::Style::plain) {
    lines.add(u"  "_s).add(text, style).endLine();
}

} // namespace

void addDraft(const DraftedRule& drafted, LineBuffer& lines) {
    const RuleDraft& draft = drafted.draft;
    lines.add(draft.rule.name, LineBuffer::Style::strong).endLine();
    addIndented(lines, summary(draft.rule));
    for (const QString& folder : drafted.destinations)
        addIndented(lines, u"to "_s + folder, LineBuffer::Style::faint);
    if (const QString note = draft.note.trimmed(); !note.isEmpty())
        addIndented(lines, u"note: "_s + note);
    for (const QString& warning : draft.warnings)
        addIndented(lines, u"warning: "_s + warning, LineBuffer::Style::bad);
    lines.endLine();
    if (drafted.asks.isEmpty() || !drafted.matches.isEmpty())
        addNames(lines, u"Would catch"_s, drafted.matches, drafted.tested);
    if (!drafted.asks.isEmpty())
        addNames(lines, u"Would ask Dobbin about"_s, drafted.asks, drafted.tested);
}

void writeDraft(JsonStream& json, const DraftedRule& drafted) {
    const RuleDraft& draft = drafted.draft;
    json.key("rule");
    writeJson(json, toJson(draft.rule));
    json.key("name").text(draft.rule.name).key("summary").text(summary(draft.rule));
    json.key("destinations");
    writeTexts(json, drafted.destinations);
    json.key("note").text(draft.note).key("warnings");
    writeTexts(json, draft.warnings);
    json.key("needsConsent").truth(draft.needsConsent);
    json.key("tested").integer(std::int64_t(drafted.tested)).key("matches");
    writeTexts(json, drafted.matches);
    json.key("asks");
    writeTexts(json, drafted.asks);
}

} // namespace quillon

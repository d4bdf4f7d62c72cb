#include "cli/SuggestOutput.h"

#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/ShellWord.h"
#include "engine/RuleSummary.h"
#include "store/PersistedState.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QString nothingText(const WatchedFolder& folder) {
    const QString nothing = u"Nothing to suggest for %1: "_s.arg(folder.name());
    if (folder.onlyNewFiles)
        return nothing + u"it tidies only new files, and leaves those alone that were there "
                         "before."_s;
    if (folder.isRecursive)
        return nothing + u"no three files in it call for a new rule that would leave all in its "
                         "subfolders where it is."_s;
    return nothing + u"no three files in it call for a new rule."_s;
}

QString nextText(const SuggestionList& list) {
    const QString folder = shellWord(pathText(list.typed));
    return list.isWatched
               ? u"Add one with: quillon suggest %1 --add ID (like %2, or its number), or turn it "
                 "down with --dismiss ID"_s.arg(folder, suggestionID(list.suggestions.front()))
               : u"To add one, watch the folder first: quillon folder add %1"_s.arg(folder);
}

} // namespace

bool isBeyondUndo(const RuleSuggestion& suggestion) {
    return suggestion.count > logCap;
}

void printSuggestions(const SuggestionList& list, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    if (list.suggestions.empty()) {
        lines.add(nothingText(list.folder)).endLine();
        return;
    }
    std::size_t number = 0;
    for (const RuleSuggestion& suggestion : list.suggestions) {
        lines.add(QString::number(++number), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(suggestionID(suggestion), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(suggestion.rule.name, LineBuffer::Style::strong)
            .add(u": "_s + suggestion.reason)
            .endLine();
        lines.add(u"   "_s + summary(suggestion.rule)).endLine();
        if (isBeyondUndo(suggestion))
            lines
                .add(u"   More than the %1 that undo reaches: --add needs --anyway"_s.arg(
                    QString::number(logCap)))
                .endLine();
    }
    if (list.folder.isRecursive)
        lines
            .add(u"%1 is tidied with its subfolders: a rule also takes what comes into them later"_s
                     .arg(list.folder.name()))
            .endLine();
    if (list.isRemembered)
        lines.add(nextText(list)).endLine();
}

void printSuggestionsAsJson(const SuggestionList& list, const Console& console) {
    JsonStream json;
    json.beginObject().key("folder").text(list.folder.path);
    json.key("isWatched").truth(list.isWatched).key("suggestions").beginList();
    for (const RuleSuggestion& suggestion : list.suggestions) {
        json.beginObject().key("id").text(suggestionID(suggestion));
        json.key("topic").text(rawValue(suggestion.topic));
        json.key("name").text(suggestion.rule.name).key("reason").text(suggestion.reason);
        json.key("count").integer(std::int64_t(suggestion.count));
        json.key("isBeyondUndo").truth(isBeyondUndo(suggestion)).key("examples");
        writeTexts(json, suggestion.examples);
        json.key("summary").text(summary(suggestion.rule)).key("rule");
        writeJson(json, toJson(suggestion.rule));
        json.endObject();
    }
    json.endList().endObject();
    finish(json, console.out);
}

} // namespace quillon

#include "cli/SuggestOutput.h"

#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/ShellWord.h"
#include "engine/RuleSummary.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QString nothingText(const WatchedFolder& folder) {
    return folder.onlyNewFiles
               ? u"Nothing to suggest for %1: it tidies only new files, and leaves those alone "
                 "that were there before."_s.arg(folder.name())
               : u"Nothing to suggest for %1: no three files in it call for a new rule."_s.arg(
                     folder.name());
}

QString nextText(const SuggestionList& list) {
    const QString folder = shellWord(pathText(list.typed));
    return list.isWatched
               ? u"Add one with: quillon suggest %1 --add N, or turn it down with --dismiss N"_s
                     .arg(folder)
               : u"To add one, watch the folder first: quillon folder add %1"_s.arg(folder);
}

} // namespace

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
            .add(suggestion.rule.name, LineBuffer::Style::strong)
            .add(u": "_s + suggestion.reason)
            .endLine();
        lines.add(u"   "_s + summary(suggestion.rule)).endLine();
    }
    lines.add(nextText(list)).endLine();
}

void printSuggestionsAsJson(const SuggestionList& list, const Console& console) {
    JsonStream json;
    json.beginObject().key("folder").text(list.folder.path);
    json.key("isWatched").truth(list.isWatched).key("suggestions").beginList();
    std::int64_t number = 0;
    for (const RuleSuggestion& suggestion : list.suggestions) {
        json.beginObject().key("number").integer(++number);
        json.key("topic").text(rawValue(suggestion.topic));
        json.key("name").text(suggestion.rule.name).key("reason").text(suggestion.reason);
        json.key("count").integer(std::int64_t(suggestion.count)).key("examples");
        writeTexts(json, suggestion.examples);
        json.key("summary").text(summary(suggestion.rule)).key("rule");
        writeJson(json, toJson(suggestion.rule));
        json.endObject();
    }
    json.endList().endObject();
    finish(json, console.out);
}

} // namespace quillon

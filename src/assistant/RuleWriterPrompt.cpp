#include "assistant/RuleWriterPrompt.h"

#include "assistant/PlainLine.h"
#include "assistant/RuleWriterActions.h"
#include "model/ConditionAttribute.h"
#include "model/FileKind.h"
#include "model/MatchMode.h"
#include "model/SizeUnit.h"
#include "model/SortStrategy.h"
#include "model/TagColor.h"
#include "store/JsonStream.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::literals;

namespace {

constexpr QStringView beforeFolder =
    u"You turn one plain-English sentence into a rule for Quillon, a Mac app that watches a folder "
    "and tidies the files in it. This rule belongs to the folder “";

constexpr QStringView beforeOperators = u"”. Answer only with the JSON the schema asks for.\n\n"
                                        "Conditions: each attribute only allows these operators:\n";

constexpr QStringView beforeKinds =
    u"\n\nCondition values:\n"
    "- Extension: lowercase, no dot (“dmg”, not “.dmg”). Use one condition per extension and "
    "matchMode “any” when the sentence lists several.\n"
    "- Kind: one of ";

constexpr QStringView beforeColors = u".\n- Tag: one of ";

constexpr QStringView beforeOtherFolders =
    u".\n- Dates with “within last (days)” or “older than (days)”: a whole number of days, e.g. "
    "“30”. With “before” or “after”: yyyy-MM-dd.\n"
    "- Size: a number, with sizeUnit KB, MB or GB. For every other attribute set sizeUnit to "
    "“MB”.\n"
    "- Where from: part of the download address, e.g. “amazon.com”.\n\n"
    "Actions:\n"
    "- destination (Move/Copy only, otherwise “”): a path starting with ~/ such as "
    "“~/Documents/Receipts”, or exactly the name of one of the user's other Quillon folders: ";

constexpr QStringView beforeSubfolder = u", or a bare name meaning a subfolder inside “";

constexpr QStringView ending = uR"prompt(”.
- renamePattern (Rename only, otherwise “”): may use {name}, {ext}, {date}, {datetime}, {date:yyyy-MM} and {counter}.
- tag (Add tag/Remove tag only, otherwise “none”).
- sortBy (Sort into subfolder only, otherwise “none”).

Common meanings:
- disk images or installers → Extension is “dmg”
- screenshots → Name begins with “Screenshot”
- photos or pictures → Kind is “image”; videos → Kind is “video”; PDFs → Kind is “pdf”
- “haven't opened in a month” → Last opened older than (days) “30”; a week → “7”; a year → “365”
- what a file is about rather than its name (receipts, payslips, contracts, bank statements) → Dobbin says it is “a receipt or invoice”
- “give them sensible names” or “name them properly” → the Rename with Dobbin action

Each action appears once. “Move and tag green” is two actions: Move to folder, then Add tag green.

Keep the rule as small as the sentence allows; never add conditions it doesn't imply. The name is two to four words in sentence case, e.g. “File receipts”. note is “” unless Quillon can't do exactly what was asked; then it is one short UK English sentence saying what differs.

Examples (folder “Downloads”, other folders “Receipts”):

“Move PDFs with invoice in the name to Receipts and tag them green”
{"name":"File invoices","matchMode":"all","conditions":[{"attribute":"Kind","operator":"is","value":"pdf","sizeUnit":"MB"},{"attribute":"Name","operator":"contains","value":"invoice","sizeUnit":"MB"}],"actions":[{"type":"Move to folder","destination":"Receipts","renamePattern":"","tag":"none","sortBy":"none"},{"type":"Add tag","destination":"","renamePattern":"","tag":"green","sortBy":"none"}],"note":""}

“Trash disk images I haven't opened in a month”
{"name":"Trash old installers","matchMode":"all","conditions":[{"attribute":"Extension","operator":"is","value":"dmg","sizeUnit":"MB"},{"attribute":"Last opened","operator":"older than (days)","value":"30","sizeUnit":"MB"}],"actions":[{"type":"Move to Trash","destination":"","renamePattern":"","tag":"none","sortBy":"none"}],"note":""}

“Put screenshots in a Screenshots folder”
{"name":"File screenshots","matchMode":"all","conditions":[{"attribute":"Name","operator":"begins with","value":"Screenshot","sizeUnit":"MB"}],"actions":[{"type":"Move to folder","destination":"Screenshots","renamePattern":"","tag":"none","sortBy":"none"}],"note":""})prompt";

template <typename E>
QStringList allRawValues() {
    QStringList texts;
    for (const E value : allCases<E>())
        texts.append(rawValue(value));
    return texts;
}

QString operatorTable() {
    QStringList lines;
    for (const auto attribute : allCases<ConditionAttribute>()) {
        QStringList operators;
        for (const MatchOperator op : allowedOperators(attribute))
            operators.append(rawValue(op));
        lines.append(rawValue(attribute) + u": "_s + operators.join(u", "_s));
    }
    return lines.join(u'\n');
}

QString quoted(const QStringList& names) {
    QStringList texts;
    for (const QString& name : names)
        texts.append(u'“' + plainLine(name) + u'”');
    return texts.isEmpty() ? u"(none)"_s : texts.join(u", "_s);
}

QStringList withNone(QStringList words) {
    words.append(u"none"_s);
    return words;
}

/// A text that may be one of a few words and may be described.
void addText(JsonStream& json, std::string_view name, const QStringList& words,
             std::string_view description = {}) {
    json.key(name).beginObject().key("type").text("string"sv);
    if (!words.isEmpty()) {
        json.key("enum").beginList();
        for (const QString& word : words)
            json.text(word);
        json.endList();
    }
    if (!description.empty())
        json.key("description").text(description);
    json.endObject();
}

void beginProperties(JsonStream& json) {
    json.beginObject().key("type").text("object"sv).key("properties").beginObject();
}

/// All of them are required, and there are no others.
void endProperties(JsonStream& json, std::initializer_list<std::string_view> names) {
    json.endObject().key("required").beginList();
    for (const std::string_view name : names)
        json.text(name);
    json.endList().key("additionalProperties").truth(false).endObject();
}

void addConditions(JsonStream& json) {
    json.key("conditions").beginObject().key("type").text("array"sv).key("items");
    beginProperties(json);
    addText(json, "attribute", allRawValues<ConditionAttribute>(),
            "What about the file to check"sv);
    addText(json, "operator", allRawValues<MatchOperator>(), "Must be one the attribute allows"sv);
    addText(json, "value", {}, "Text, extension, kind, tag, days or size to compare with"sv);
    addText(json, "sizeUnit", allRawValues<SizeUnit>());
    endProperties(json, {"attribute", "operator", "value", "sizeUnit"});
    json.endObject();
}

void addActions(JsonStream& json) {
    QStringList types;
    for (const ActionType type : writableActions)
        types.append(rawValue(type));
    json.key("actions").beginObject().key("type").text("array"sv);
    json.key("description").text("What to do; each action type at most once"sv).key("items");
    beginProperties(json);
    addText(json, "type", types);
    addText(json, "destination", {}, "Folder for Move/Copy, otherwise empty"sv);
    addText(json, "renamePattern", {});
    addText(json, "tag", withNone(allRawValues<TagColor>()));
    addText(json, "sortBy", withNone(allRawValues<SortStrategy>()));
    endProperties(json, {"type", "destination", "renamePattern", "tag", "sortBy"});
    json.endObject();
}

} // namespace

QString ruleWriterPrompt(const QString& folderName, const QStringList& otherFolderNames) {
    const QString folder = plainLine(folderName);
    return beforeFolder.toString() + folder + beforeOperators.toString() + operatorTable() +
           beforeKinds.toString() + allRawValues<FileKind>().join(u", "_s) +
           beforeColors.toString() + allRawValues<TagColor>().join(u", "_s) +
           beforeOtherFolders.toString() + quoted(otherFolderNames) + beforeSubfolder.toString() +
           folder + ending.toString();
}

QByteArray ruleWriterSchema() {
    JsonStream json;
    beginProperties(json);
    addText(json, "name", {}, "Two to four words, sentence case"sv);
    addText(json, "matchMode", allRawValues<MatchMode>());
    addConditions(json);
    addActions(json);
    addText(json, "note", {}, "Empty unless the rule can't do exactly what was asked"sv);
    endProperties(json, {"name", "matchMode", "conditions", "actions", "note"});
    return json.take();
}

} // namespace quillon

#include "model/JsonReader.h"
#include "model/JsonText.h"
#include "model/LogEntry.h"
#include "model/RuleFile.h"
#include "model/Uuid.h"
#include "model/WatchedFolder.h"
#include "support/FakeClock.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto someID = "6b1f0c9e-2d3a-4f57-9c1b-0a8e7d6f5c4b";

JsonReader reader(const char* json) {
    return JsonReader(*parseJson(QByteArray(json).replace('\'', '"')));
}

std::string messageOf(QByteArray text) {
    const auto rules = decodeRules(text.replace('\'', '"'));
    return rules ? "no error" : rules.error().message.toStdString();
}

} // namespace

TEST(Decoding, RuleWithoutKeysIsEmptyButOn) {
    for (const char* json : {"{}", "{'name': null, 'isEnabled': null, 'conditions': null}"}) {
        const Rule rule = *ruleFromJson(reader(json));
        EXPECT_EQ(rule, (Rule{.id = rule.id, .name = u"Rule"_s, .conditions = {}, .actions = {}}));
        EXPECT_FALSE(rule.id.isNull());
        EXPECT_NE(rule.id, ruleFromJson(reader(json))->id);
    }
}

TEST(Decoding, MatchAllOfOlderFilesGivesTheMode) {
    const struct {
        const char* json;
        MatchMode mode;
    } cases[] = {
        {"{'matchAll': false}", MatchMode::any},
        {"{'matchAll': true}", MatchMode::all},
        {"{'matchAll': 'no'}", MatchMode::all},
        {"{'matchAll': null}", MatchMode::all},
        {"{'matchAll': false, 'matchMode': 'none'}", MatchMode::none},
        {"{'matchAll': false, 'matchMode': 'all'}", MatchMode::all},
        {"{'matchAll': false, 'matchMode': null}", MatchMode::any},
    };
    for (const auto& [json, mode] : cases) {
        const auto rule = ruleFromJson(reader(json));
        ASSERT_TRUE(rule) << json;
        EXPECT_EQ(rule->matchMode, mode) << json;
        EXPECT_EQ(toJson(*rule)["matchMode"_L1], rawValue(mode)) << json;
        EXPECT_FALSE(toJson(*rule).contains("matchAll"_L1)) << json;
    }
}

TEST(Decoding, ConditionWithoutUnitKeepsNone) {
    const auto condition = conditionFromJson(reader(
        "{'id': '6b1f0c9e-2d3a-4f57-9c1b-0a8e7d6f5c4b', 'attribute': 'Size', 'op': 'less than',"
        " 'value': '5', 'colour': 'unknown keys are passed over'}"));
    ASSERT_TRUE(condition);
    EXPECT_EQ(condition->unit, std::nullopt);
    EXPECT_FALSE(toJson(*condition).contains("unit"_L1));
    EXPECT_EQ(toJson(*condition)["id"_L1], QString::fromLatin1(someID).toUpper());
    EXPECT_EQ(Condition{}.unit, SizeUnit::mb);
}

TEST(Decoding, ActionWithTypeAloneHasTheDefaults) {
    const RuleAction action = *actionFromJson(reader("{'type': 'Run shell script'}"));
    EXPECT_EQ(action, (RuleAction{.id = action.id, .type = ActionType::runScript}));
    EXPECT_EQ(action.scriptCommand, u"echo \"$1\""_s);
    EXPECT_EQ(action.renamePattern, u"{name}"_s);
    EXPECT_EQ(actionFromJson(reader("{}"))->type, ActionType::move);
}

TEST(Decoding, FolderWithPathAlone) {
    const struct {
        const char* json;
        bool skipOnlineOnly;
    } cases[] = {
        {"{'path': '/home/anna/Downloads'}", false},
        {"{'path': '/Users/anna/Library/CloudStorage'}", false},
        {"{'path': '/Users/anna/Library/CloudStorage/Box/Inbox'}", true},
        {"{'path': '/Users/anna/Library/Mobile Documents/Inbox'}", true},
        {"{'path': '/Users/anna/Library/CloudStorage/Box', 'skipOnlineOnly': false}", false},
        {"{'path': '/home/anna', 'skipOnlineOnly': true}", true},
    };
    for (const auto& [json, skips] : cases) {
        const auto folder = folderFromJson(reader(json));
        ASSERT_TRUE(folder) << json;
        EXPECT_EQ(*folder, (WatchedFolder{.id = folder->id,
                                          .path = folder->path,
                                          .isWatching = true,
                                          .skipOnlineOnly = skips}))
            << json;
    }
}

TEST(Decoding, EmptyLogEntryHappensNow) {
    const FakeClock clock;
    const LogEntry entry = *logEntryFromJson(reader("{}"), clock.now());
    EXPECT_EQ(entry, (LogEntry{.id = entry.id, .date = clock.now()}));
    EXPECT_EQ(toJson(entry).keys(),
              QStringList({u"actionSummary"_s, u"date"_s, u"fileName"_s, u"folderName"_s, u"id"_s,
                           u"isError"_s, u"ruleName"_s, u"undoable"_s}));
}

TEST(Decoding, ErrorsNameTheKeyAndTheText) {
    const struct {
        const char* text;
        const char* message;
    } cases[] = {
        {"[{'isEnabled': 'yes'}]", "rules[0].isEnabled: expected true or false, found text"},
        {"[{'name': 3}]", "rules[0].name: expected text, found a number"},
        {"[{'name': true}]", "rules[0].name: expected text, found true"},
        {"[{'conditions': {}}]", "rules[0].conditions: expected a list, found an object"},
        {"[{}, []]", "rules[1]: expected an object, found a list"},
        {"[null]", "rules[0]: expected an object, found null"},
        {"[{'id': '{6b1f0c9e-2d3a-4f57-9c1b-0a8e7d6f5c4b}'}]",
         "rules[0].id: “{6b1f0c9e-2d3a-4f57-9c1b-0a8e7d6f5c4b}” is not a UUID"},
        {"[{'matchMode': 'some'}]", "rules[0].matchMode: “some” is not a match mode"},
        {"[{'actions': [{}, {'type': 'move to folder'}]}]",
         "rules[0].actions[1].type: “move to folder” is not an action"},
        {"[{'actions': [{'tag': 'Red\\nish'}]}]",
         "rules[0].actions[0].tag: “Red ish” is not a tag colour"},
        {"[{'actions': [{'sortBy': ''}]}]", "rules[0].actions[0].sortBy: “” is not a way to sort"},
        {"[{'conditions': [{}]}]", "rules[0].conditions[0].id is missing"},
        {"[{'conditions': [{'id': null}]}]", "rules[0].conditions[0].id is missing"},
        {"[{'name': 'a\\u0000b'}]", "rules[0].name: the text holds a NUL character"},
        {"[{'name': '\\ud83d'}]", "rules[0].name: the text is not valid Unicode"},
        {"{'rules': []}", "a rule file is a list of rules, and this is an object"},
        {"", "the text is empty"},
        {" \n", "the text is empty"},
        {"\xFF\xFE[", "the text is UTF-16, and JSON is UTF-8"},
        {"[{'name': '\xC3'}]", "line 1, column 12: the text is not UTF-8"},
        {"\xEF\xBB\xBF[\n {'é': 1,\n  'name' 2}]", "line 3, column 10: missing name separator"},
        {"[{]", "line 1, column 3: unterminated object"},
        {"[{'é': 'é' 1}]", "line 1, column 12: unterminated object"},
        {"[{},]", "line 1, column 5: object is missing after a comma"},
        {"[{}] x", "line 1, column 6: garbage at the end of the document"},
        {"[{} {}]", "line 1, column 5: missing value separator"},
        {"[tru]", "line 1, column 2: illegal value"},
        {"[1,", "line 1, column 4: unterminated array"},
        {"3", "line 1, column 1: illegal value"},
    };
    for (const auto& [text, message] : cases)
        EXPECT_EQ(messageOf(text), message);
}

TEST(Decoding, ErrorsInsideOfConditionsNameTheirPlace) {
    const QByteArray start = QByteArray("[{}, {}, {'conditions': [{'id': '") + someID + "', ";
    const struct {
        const char* rest;
        const char* message;
    } cases[] = {
        {"'attribute': 'Name', 'op': 'contians', 'value': ''}]}]",
         ".op: “contians” is not an operator"},
        {"'attribute': 'Nam', 'op': 'is', 'value': ''}]}]",
         ".attribute: “Nam” is not an attribute"},
        {"'attribute': 'Name', 'op': 'is'}]}]", ".value is missing"},
        {"'attribute': 'Size', 'op': 'is', 'value': 5}]}]",
         ".value: expected text, found a number"},
        {"'attribute': 'Size', 'op': 'is', 'value': '', 'unit': 'TB'}]}]",
         ".unit: “TB” is not a size unit"},
    };
    for (const auto& [rest, message] : cases)
        EXPECT_EQ(messageOf(start + rest), std::string("rules[2].conditions[0]") + message);
}

TEST(Decoding, FolderErrors) {
    const struct {
        const char* json;
        const char* message;
    } cases[] = {
        {"{'isWatching': true}", "path is missing"},
        {"{'path': '/a', 'colorIndex': 3000000000}", "colorIndex: 3000000000 is out of range"},
        {"{'path': '/a', 'colorIndex': -1e300}", "colorIndex: -1e+300 is out of range"},
        {"{'path': '/a', 'colorIndex': 2.5}", "colorIndex: 2.5 is not a whole number"},
        {"{'path': '/a', 'schedule': 'Weekly'}", "schedule: “Weekly” is not a schedule"},
        {"{'path': '/a', 'rules': [{'actions': 3}]}",
         "rules[0].actions: expected a list, found a number"},
    };
    for (const auto& [json, message] : cases) {
        const auto folder = folderFromJson(reader(json));
        ASSERT_FALSE(folder) << json;
        EXPECT_EQ(folder.error().message.toStdString(), message);
        EXPECT_EQ(folder.error().kind, ErrorKind::invalid);
    }
}

TEST(Decoding, LongTextIsCutInErrorsOnACharacter) {
    const QString quoted = quotedForError(QString(79, u'a') + u"🗂🗂"_s);
    EXPECT_EQ(quoted, u'“' + QString(79, u'a') + u"…”"_s);
}

TEST(Decoding, RefusesWhatIsTooLargeOrTooDeep) {
    EXPECT_EQ(messageOf(QByteArray((64 << 20) + 1, ' ')), "a rule file has at most 64 MB");
    EXPECT_TRUE(messageOf(QByteArray(100'000, '[')).ends_with("too deeply nested document"));
}

TEST(Uuid, ReadsItsOwnFormOnly) {
    const QString text = QString::fromLatin1(someID);
    EXPECT_EQ(uuidText(*uuidFromText(text)), text.toUpper());
    EXPECT_TRUE(uuidFromText(u"00000000-0000-0000-0000-000000000000"_s));
    for (const QString& nonsense :
         {QString(), u"{"_s + text + u"}"_s, text + u"0"_s, text.chopped(1), text + u" "_s,
          u"zzzzzzzz-2d3a-4f57-9c1b-0a8e7d6f5c4b"_s, u"6b1f0c9e2d3a4f579c1b0a8e7d6f5c4b"_s})
        EXPECT_FALSE(uuidFromText(nonsense)) << nonsense.toStdString();
}

// What the documentation shows is what is written.
TEST(Formats, ExampleIsByteForByte) {
    QFile file(QStringLiteral(QUILLON_SOURCE_DIR "/docs/formats.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray document = file.readAll();
    const auto block = [&](const char* opening) {
        const auto start = document.indexOf(opening) + 8;
        return document.sliced(start, document.indexOf("```", start) - start);
    };
    const auto rules = decodeRules(block("```json\n["));
    ASSERT_TRUE(rules) << rules.error().message.toStdString();
    EXPECT_EQ(encodeRules(*rules), block("```json\n["));

    const auto json = parseJson(block("```json\n{"));
    ASSERT_TRUE(json) << json.error().message.toStdString();
    EXPECT_EQ(toJson(*logEntryFromJson(JsonReader(*json), Timestamp{})), json->toObject());
}

} // namespace quillon

#include "support/MatchingFixture.h"

#include <gtest/gtest.h>

#include <thread>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using A = ConditionAttribute;
using O = MatchOperator;

constexpr MatchOutcome matches = MatchOutcome::matches;
constexpr MatchOutcome doesNotMatch = MatchOutcome::doesNotMatch;
constexpr MatchOutcome waiting = MatchOutcome::waiting;

/// A letter a condition: t and f are about the name and hold or don't; y, n and ? are questions
/// with that answer.
Rule ruleOf(MatchMode mode, std::string_view conditions) {
    Rule rule;
    rule.matchMode = mode;
    rule.conditions.clear();
    for (const char letter : conditions) {
        const QString value(1, QLatin1Char(letter));
        if (letter == 't' || letter == 'f')
            rule.conditions.push_back(condition(A::name, letter == 't' ? O::isNot : O::is, value));
        else
            rule.conditions.push_back(condition(A::dobbinSays, O::is, value));
    }
    return rule;
}

TEST(CompiledRule, ModesCombineConditions) {
    const struct {
        const char* conditions;
        MatchOutcome all, any, none;
    } rows[] = {
        {"", doesNotMatch, doesNotMatch, doesNotMatch}, {"t", matches, matches, doesNotMatch},
        {"f", doesNotMatch, doesNotMatch, matches},     {"tt", matches, matches, doesNotMatch},
        {"tf", doesNotMatch, matches, doesNotMatch},    {"ft", doesNotMatch, matches, doesNotMatch},
        {"ff", doesNotMatch, doesNotMatch, matches},
    };
    MatchingFixture one;
    one.judge.waiting = true; // no rule here asks it
    for (const auto& row : rows) {
        EXPECT_EQ(one.outcome(ruleOf(MatchMode::all, row.conditions)), row.all) << row.conditions;
        EXPECT_EQ(one.outcome(ruleOf(MatchMode::any, row.conditions)), row.any) << row.conditions;
        EXPECT_EQ(one.outcome(ruleOf(MatchMode::none, row.conditions)), row.none) << row.conditions;
    }
}

TEST(CompiledRule, WaitsForTheAssistantOnlyWhereItMust) {
    enum Naming { keeps, named, unnamed };
    const struct {
        MatchMode mode;
        const char* conditions;
        Naming naming;
        bool pending; ///< the judge has something to answer about the file
        MatchOutcome outcome;
        const char* asked;
    } rows[] = {
        {MatchMode::all, "ty", keeps, false, matches, "y"},
        {MatchMode::all, "tn", keeps, false, doesNotMatch, "n"},
        {MatchMode::all, "t?", keeps, true, waiting, "?"},
        {MatchMode::all, "t?", keeps, false, doesNotMatch, "?"},
        {MatchMode::all, "n?", keeps, true, waiting, "n?"},
        {MatchMode::all, "y?y", keeps, true, waiting, "y?y"},
        {MatchMode::all, "?f", keeps, false, doesNotMatch, ""},
        {MatchMode::all, "?f", keeps, true, waiting, ""},
        {MatchMode::any, "t?", keeps, true, matches, ""},
        {MatchMode::any, "fy", keeps, false, matches, "y"},
        {MatchMode::any, "fn", keeps, false, doesNotMatch, "n"},
        {MatchMode::any, "fy?", keeps, true, waiting, "y?"},
        {MatchMode::none, "t?", keeps, false, doesNotMatch, ""},
        {MatchMode::none, "fn", keeps, false, matches, "n"},
        {MatchMode::none, "fy", keeps, false, doesNotMatch, "y"},
        {MatchMode::none, "f?", keeps, true, waiting, "?"},
        {MatchMode::all, "t", named, false, matches, ""},
        {MatchMode::all, "t", unnamed, true, waiting, ""},
        {MatchMode::all, "t", unnamed, false, doesNotMatch, ""},
        {MatchMode::all, "ty", unnamed, true, waiting, "y"},
        {MatchMode::any, "t?", unnamed, true, waiting, ""},
        {MatchMode::any, "t?", named, true, matches, ""},
        {MatchMode::all, "", named, false, doesNotMatch, ""},
        {MatchMode::all, "", named, true, waiting, ""},
    };
    for (const auto& row : rows) {
        MatchingFixture one;
        one.judge.verdicts = {{u"y"_s, Verdict::yes}, {u"n"_s, Verdict::no}};
        one.judge.waiting = row.pending;
        Rule rule = ruleOf(row.mode, row.conditions);
        if (row.naming != keeps)
            rule.actions.front().type = ActionType::renameWithDobbin;
        if (row.naming == named)
            one.judge.name = u"Invoice"_s;
        const std::string what = rawValue(row.mode).toStdString() + " of " + row.conditions;
        EXPECT_EQ(one.outcome(rule), row.outcome) << what;
        EXPECT_EQ(one.judge.asked.join(u""_s).toStdString(), row.asked) << what;
    }
}

TEST(CompiledRule, AsksForANameOnlyWhenTheConditionsHold) {
    for (const auto& [conditions, asked] :
         {std::pair("t", 1), std::pair("f", 0), std::pair("tn", 0), std::pair("t?", 0)}) {
        MatchingFixture one;
        one.judge.verdicts = {{u"n"_s, Verdict::no}};
        Rule rule = ruleOf(MatchMode::all, conditions);
        rule.actions.front().type = ActionType::renameWithDobbin;
        EXPECT_EQ(one.outcome(rule), doesNotMatch);
        EXPECT_EQ(one.judge.namesAsked, asked) << conditions;
    }
}

TEST(CompiledRule, CapturesComeFromTheFirstPatternOverText) {
    MatchingFixture one;
    one.file.path = "Invoice-42 Cafe\u0301.pdf";
    one.machine.provenance.byPath[one.path()] = {u"https://shop.example/"_s,
                                                 u"https://shop.example/order/77"_s};
    const auto pattern = [](A attribute, const QString& value) {
        return condition(attribute, O::matchesRegex, value);
    };
    const struct {
        std::vector<Condition> conditions;
        QStringList captures;
    } rows[] = {
        {{pattern(A::name, u"(\\w+)-(\\d+)(x)?"_s)}, {u"Invoice"_s, u"42"_s, QString()}},
        {{pattern(A::name, u"(caf.)$"_s)}, {u"Caf\u00E9"_s}},
        {{pattern(A::fullName, u"(x)?\\.(PDF)"_s)}, {QString(), u"pdf"_s}},
        {{pattern(A::extension, u".(p)df"_s)}, {u"p"_s}},
        {{pattern(A::whereFrom, u"order/(\\d+)"_s)}, {u"77"_s}},
        {{pattern(A::whereFrom, u"nowhere(.)"_s)}, {}},
        {{pattern(A::name, u"(nothing)"_s), pattern(A::name, u"(\\d+)"_s)}, {}},
        {{pattern(A::size, u"(1)"_s), pattern(A::name, u"(\\d+)"_s)}, {u"42"_s}},
        {{condition(A::name, O::contains, u"(\\d+)"_s), pattern(A::name, u"(\\d+)"_s)}, {u"42"_s}},
        {{pattern(A::name, u"(unclosed"_s)}, {}},
        {{pattern(A::name, u"Invoice"_s)}, {}},
        {{}, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(one.captures(row.conditions), row.captures)
            << (row.conditions.empty() ? "none" : row.conditions.front().value.toStdString());
}

TEST(CompiledRule, ReadsExtendedAttributesLastAndOnce) {
    MatchingFixture one;
    Rule rule;
    rule.conditions = {condition(A::whereFrom, O::contains, u"x"_s),
                       condition(A::tag, O::is, u"red"_s), condition(A::name, O::is, u"other"_s)};
    EXPECT_EQ(one.outcome(rule), doesNotMatch);
    EXPECT_EQ(one.machine.tags.reads + one.machine.provenance.reads, 0);

    rule.matchMode = MatchMode::none;
    rule.conditions.insert(rule.conditions.end(), rule.conditions.begin(), rule.conditions.end());
    EXPECT_EQ(one.outcome(rule), matches);
    EXPECT_EQ(one.machine.tags.reads, 1);
    EXPECT_EQ(one.machine.provenance.reads, 1);
}

TEST(FileFacts, TellOfTheNewFileAfterReset) {
    const FakePlatform machine;
    KindClassifier kinds(machine.contentTypes);
    const std::string folder = "/f";
    FileStatus aFolder;
    aFolder.type = FileType::directory;
    const ListedFile files[] = {
        {"Long name.of a.PNG", {}}, {"über.TXT", {}}, {"a", {}}, {"x.pdf", aFolder}};
    FileFacts reused(machine.platform, kinds, folder, files[0]);
    for (const ListedFile& file : files) {
        reused.reset(file);
        FileFacts fresh(machine.platform, kinds, folder, file);
        EXPECT_EQ(reused.path(), fresh.path());
        EXPECT_EQ(reused.fullName().text, fresh.fullName().text);
        EXPECT_EQ(reused.name().lower, fresh.name().lower);
        EXPECT_EQ(reused.extension().lower, fresh.extension().lower);
        EXPECT_EQ(reused.kind(), fresh.kind());
    }
}

TEST(CompiledRule, MayBeSharedByThreads) {
    Rule rule;
    rule.conditions = {condition(A::name, O::matchesRegex, u"^n\\d*[02468]$"_s),
                       condition(A::extension, O::is, u"txt"_s)};
    const CompiledRule shared(rule);
    const auto countMatches = [&](int& matched) {
        MatchingFixture one;
        for (int i = 0; i < 2000; ++i) {
            one.file.path = "N" + std::to_string(i) + ".txt";
            matched += one.outcome(shared) == matches;
        }
    };
    int here = 0;
    int there = 0;
    {
        const std::jthread other(countMatches, std::ref(there));
        countMatches(here);
    }
    EXPECT_EQ(here, 1000);
    EXPECT_EQ(there, 1000);
}

} // namespace
} // namespace quillon::testing

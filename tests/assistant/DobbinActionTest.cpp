#include "assistant/DobbinAction.h"

#include "assistant/RawAction.h"
#include "assistant/SuggestedChanges.h"
#include "model/JsonReader.h"
#include "model/JsonText.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <gtest/gtest.h>

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = DobbinAction::Kind;

/// A name and its number, which is its id.
Rule rule(const QString& name, uint number) {
    Rule made;
    made.name = name;
    made.id = QUuid(number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    return made;
}

std::vector<WatchedFolder> folders() {
    return {{.path = u"/home/kim/Downloads"_s,
             .rules = {rule(u"Installers"_s, 1), rule(u"Receipts"_s, 2), rule(u"Rest"_s, 3),
                       rule(QString(200, u'x') + u"y"_s, 4)}},
            {.path = u"/home/kim/Desktop"_s, .rules = {rule(u"Screens"_s, 5)}}};
}

QString orderOf(const DobbinAction& action) {
    QString numbers;
    for (const QUuid& id : action.ruleOrder.value_or(std::vector<QUuid>()))
        numbers += QString::number(id.data1);
    return numbers;
}

QJsonValue json(const QString& text) {
    QString strict = text;
    return parseJson(strict.replace(u'\'', u'"').toUtf8()).value();
}

} // namespace

TEST(DobbinActionTest, ResolvesWhatFitsTheFolders) {
    struct Row {
        QString raw;
        QString label; ///< none: the proposal is dropped
        QString detail = {};
    };
    const std::array<Row, 20> rows{{
        {u"{'type':'runFolder','folder':'Downloads'}"_s, u"Run Downloads now"_s},
        {u"{'type':'runFolder','folder':' “dOWNLOADS” '}"_s, u"Run Downloads now"_s},
        {u"{'type':'runFolder','folder':'Music'}"_s, {}},
        {u"{'type':'runFolder','folder':' ” '}"_s, {}},
        {u"{'type':'RunFolder','folder':'Downloads'}"_s, {}},
        {u"{'type':'turnOnRule','folder':'Downloads','rule':'receipts'}"_s, u"Turn on “Receipts”"_s,
         u"2"_s},
        {u"{'type':'turnOffRule','folder':'Desktop','rule':'“Screens”'}"_s, u"Turn off “Screens”"_s,
         u"5"_s},
        {u"{'type':'turnOnRule','folder':'Downloads','rule':'Screens'}"_s, {}},
        {u"{'type':'turnOnRule','folder':'Downloads','rule':['Receipts']}"_s, {}},
        {u"{'type':'turnOffRule','folder':'Downloads','rule':'"_s + QString(117, u'x') + u"…'}"_s,
         u"Turn off “"_s + QString(200, u'x') + u"y”"_s, u"4"_s},
        {u"{'type':'reorderRules','folder':'Downloads','ruleOrder':['Receipts','Installers']}"_s,
         u"Reorder rules in Downloads"_s, u"21"_s},
        {u"{'type':'reorderRules','folder':'Downloads',"
         "'ruleOrder':['rest','Unicorns','“Rest”','Installers',4]}"_s,
         u"Reorder rules in Downloads"_s, u"31"_s},
        {u"{'type':'reorderRules','folder':'Downloads','ruleOrder':['Installers','Receipts']}"_s,
         {}},
        {u"{'type':'reorderRules','folder':'Downloads','ruleOrder':['Unicorns']}"_s, {}},
        {u"{'type':'reorderRules','folder':'Downloads','ruleOrder':'Receipts'}"_s, {}},
        {u"{'type':'reorderRules','folder':'Desktop','ruleOrder':['Screens','Screens']}"_s, {}},
        {u"{'type':'writeRule','folder':'Desktop','description':' Move PDFs\\n to Paper. '}"_s,
         u"Write this rule for Desktop"_s, u"Move PDFs to Paper."_s},
        {u"{'type':'writeRule','folder':'Desktop','description':' \\n\\t '}"_s, {}},
        {u"{'type':'writeRule','folder':'Desktop','description':'"_s + QString(5000, u'x') +
             u"'}"_s,
         {}},
        {u"['runFolder','Downloads']"_s, {}},
    }};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.raw.left(120).toStdString());
        const auto action = resolve(rawActionFromJson(json(row.raw)), folders());
        ASSERT_EQ(action.has_value(), !row.label.isEmpty());
        if (!action)
            continue;
        EXPECT_EQ(action->label(), row.label);
        EXPECT_EQ(action->ruleID      ? QString::number(action->ruleID->data1)
                  : action->ruleOrder ? orderOf(*action)
                                      : action->description.value_or(QString()),
                  row.detail);
        const auto kept = dobbinActionFromJson(JsonReader(toJson(*action)));
        EXPECT_EQ(kept ? *kept : DobbinAction{}, *action);
    }
    EXPECT_FALSE(dobbinActionFromJson(JsonReader(json(u"{'kind':'burnFolder'}"_s))));
    EXPECT_FALSE(dobbinActionFromJson(JsonReader(json(u"{'kind':'runFolder'}"_s))));
}

TEST(DobbinActionTest, KeepsTwoChangesOfAnAnswerAndAddsFixes) {
    const auto all = folders();
    const QString run = u"{\"type\":\"runFolder\",\"folder\":\"%1\"}"_s;
    const QString three = u"{\"actions\":["_s + run.arg(u"Music"_s) + u',' + run.arg(u"Desktop"_s) +
                          u',' + run.arg(u"desktop"_s) + u',' + run.arg(u"Downloads"_s) + u',' +
                          run.arg(u"Downloads"_s) + u"]}"_s;
    const auto kept = actionsFromJson(three, all);
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept[0].folderName, u"Desktop"_s);
    EXPECT_EQ(kept[1].folderName, u"Downloads"_s);
    for (const QString& useless :
         {u""_s, u"I'd say no."_s, u"{\"actions\":7}"_s, u"{\"actions\":[1,null,\"x\"]}"_s,
          u"["_s.repeated(200'000), three.chopped(1), QString(1, QChar(0xD800))})
        EXPECT_TRUE(actionsFromJson(useless, all).empty() && !saysNoChange(useless))
            << useless.left(30).toStdString();
    EXPECT_TRUE(saysNoChange(u"{\"actions\":[]}"_s) && saysNoChange(u"[]"_s));

    const auto conflict = [&](std::size_t earlier, std::size_t later) {
        return RuleConflict{.fileName = u"a"_s,
                            .folderID = all[0].id,
                            .folderName = u"Downloads"_s,
                            .earlierID = all[0].rules[earlier].id,
                            .earlierName = {},
                            .laterID = all[0].rules[later].id,
                            .laterName = {}};
    };
    const auto fixed = fixes({conflict(2, 0), conflict(0, 2), conflict(0, 1)}, {}, all);
    ASSERT_EQ(fixed.size(), 1U) << "the first that the present order makes, and one a folder";
    EXPECT_EQ(orderOf(fixed[0]), u"3124"_s);
    EXPECT_TRUE(fixes({conflict(0, 2)}, fixed, all).empty());
    EXPECT_EQ(fixes({conflict(0, 2)}, {kept[0]}, all).size(), 1U);
    EXPECT_TRUE(fixes({conflict(0, 2)}, kept, all).empty()) << "two are shown already";
    EXPECT_TRUE(fixes({conflict(0, 2)}, {}, {}).empty());
}

TEST(DobbinActionTest, AsksModelsForThePropertiesInThisOrder) {
    EXPECT_EQ(
        QString::fromUtf8(actionsOnlySchema()),
        u"{\"type\":\"object\",\"properties\":{\"actions\":{\"type\":\"array\",\"description\":"
        "\"Changes Dobbin suggested that Quillon can make, at most two; empty if none\","
        "\"items\":{\"type\":\"object\",\"properties\":{\"type\":{\"type\":\"string\",\"enum\":["
        "\"reorderRules\",\"turnOnRule\",\"turnOffRule\",\"runFolder\",\"writeRule\"]},"
        "\"folder\":{\"type\":\"string\",\"description\":\"Folder name\"},"
        "\"rule\":{\"type\":\"string\",\"description\":"
        "\"Rule name for turnOnRule or turnOffRule, otherwise empty\"},"
        "\"ruleOrder\":{\"type\":\"array\",\"items\":{\"type\":\"string\"},\"description\":"
        "\"For reorderRules: every rule name in the folder in the new order\"},"
        "\"description\":{\"type\":\"string\",\"description\":"
        "\"For writeRule: the rule in one plain sentence\"}},"
        "\"required\":[\"type\",\"folder\",\"rule\",\"ruleOrder\",\"description\"],"
        "\"additionalProperties\":false}}},\"required\":[\"actions\"],"
        "\"additionalProperties\":false}"_s);
}

TEST(DobbinActionTest, NoticesWhichAnswersSuggestAChange) {
    for (const QString& answer :
         {u"Move File receipts above Trash old installers."_s, u"You could turn on “Old stuff”."_s,
          u"Turn the rule off again."_s, u"Try reordering the rules."_s,
          u"Just run Downloads now."_s, u"I can write a rule for that."_s, u"Shall I disable it?"_s,
          u"Adding a new rule that moves PDFs would help."_s, u"Switch it back on."_s})
        EXPECT_TRUE(suggestsChange(answer)) << answer.toStdString();
    for (const QString& answer :
         {u"Setup.dmg went to the Trash on Thursday, by Old installers."_s,
          u"I can't see it among the entries; check the Trash."_s,
          u"It was moved to Receipts this morning."_s, u"It ran on Monday."_s, QString()})
        EXPECT_FALSE(suggestsChange(answer)) << answer.toStdString();
}

TEST(DobbinActionTest, AppliesWhatStillFitsAndRefusesTheRestWhole) {
    testing::AppStoreBench bench;
    AppStore& store = *bench.store;
    const QUuid id = bench.addFolder("inbox");
    for (const QString& extension : {u"a"_s, u"b"_s, u"c"_s})
        bench.addRule(bench.mover(extension, "out"), id);
    const auto rules = store.folder(id)->rules;
    const auto order = [&] {
        QString names;
        for (const Rule& one : store.folder(id)->rules)
            names += one.conditions.front().value;
        return names;
    };
    const auto change = [&](Kind kind) {
        return DobbinAction{.kind = kind, .folderID = id, .folderName = u"inbox"_s};
    };
    const auto said = [](const Expected<QString>& outcome) {
        return outcome ? *outcome : u"! "_s + outcome.error().message;
    };

    DobbinAction off = change(Kind::turnOffRule);
    off.ruleID = rules[1].id;
    off.ruleName = u"Move b"_s;
    EXPECT_EQ(said(apply(off, store)), u"“Move b” is now off"_s);
    EXPECT_FALSE(store.folder(id)->rules[1].isEnabled);
    EXPECT_EQ(said(apply(off, store)), u"“Move b” is off already"_s);
    DobbinAction on = off;
    on.kind = Kind::turnOnRule;
    EXPECT_EQ(said(apply(on, store)), u"“Move b” is now on"_s);
    EXPECT_TRUE(bench.saved().folders.front().rules[1].isEnabled);
    on.done = true;
    EXPECT_EQ(said(apply(on, store)), u"! That has been done already"_s);

    DobbinAction reorder = change(Kind::reorderRules);
    EXPECT_EQ(said(apply(reorder, store)),
              u"! The rules of inbox have changed since; ask Dobbin again"_s);
    reorder.ruleOrder = {rules[2].id, rules[1].id};
    bench.addRule(bench.mover(u"d"_s, "out"), id);
    EXPECT_EQ(said(apply(reorder, store)), u"The rules of inbox are in their new order"_s);
    EXPECT_EQ(order(), u"cbad"_s) << "those that it doesn't name stay behind";
    EXPECT_EQ(said(apply(reorder, store)), u"The rules of inbox are in that order already"_s);

    const auto runs = bench.runs([&] {
        EXPECT_EQ(said(apply(change(Kind::runFolder), store)), u"inbox is being tidied"_s);
    });
    EXPECT_EQ(runs, 1U);
    EXPECT_EQ(bench.reports.front().cause, RunCause::asked);

    const auto before = store.folders();
    DobbinAction write = change(Kind::writeRule);
    write.description = u"Move PDFs"_s;
    EXPECT_TRUE(apply(write, store));
    EXPECT_EQ(store.folders(), before);

    bench.breakSaving();
    const auto unsaved = apply(off, store);
    ASSERT_FALSE(unsaved);
    EXPECT_EQ(unsaved.error(), store.lastSaveError());
    bench.mendSaving();

    store.deleteRule(rules[1].id, id);
    const QString left = order();
    reorder.ruleOrder = {rules[0].id, rules[1].id, rules[2].id};
    EXPECT_EQ(said(apply(reorder, store)),
              u"! The rules of inbox have changed since; ask Dobbin again"_s);
    EXPECT_EQ(said(apply(off, store)), u"! The rule “Move b” is no longer in inbox"_s);
    EXPECT_EQ(order(), left);
    store.removeFolder(id);
    for (const Kind kind : allCases<Kind>())
        EXPECT_EQ(said(apply(change(kind), store)), u"! “inbox” is no longer watched"_s);
}

} // namespace quillon

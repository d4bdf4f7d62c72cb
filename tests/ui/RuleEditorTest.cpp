#include "ui/editor/RuleEditor.h"

#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/FakeDesktop.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A model that says the same whatever it is asked.
struct OneAnswer final : ModelAccess {
    Expected<QString> answer;

    QCoro::Task<Expected<QString>> send(AIRequest) override { co_return Expected<QString>(answer); }
    [[nodiscard]] bool readContents() const override { return false; }
};

QString ruleAsJson(const QString& destination) {
    return u"{\"name\":\"File papers\",\"matchMode\":\"any\",\"conditions\":[{\"attribute\":"
           "\"Extension\",\"operator\":\"is\",\"value\":\"pdf\",\"sizeUnit\":\"MB\"}],"
           "\"actions\":[{\"type\":\"Move to folder\",\"destination\":\"%1\",\"renamePattern\":"
           "\"\",\"tag\":\"none\",\"sortBy\":\"none\"}],\"note\":\"I took papers to mean PDFs.\"}"_s
               .arg(destination);
}

class RuleEditorTest : public ::testing::Test {
protected:
    AppStoreBench bench;
    QUuid folderID = bench.addFolder("Downloads");
    QString folder = uuidText(folderID);
    OneAnswer model;
    QString unavailable;
    FakeDesktop desktop;
    Sheets sheets;
    Toasts toasts;
    RuleEditor editor{
        {.store = *bench.store,
         .sheets = sheets,
         .toasts = toasts,
         .fileChooser = desktop,
         .probing = {bench.platform, bench.background, bench.timers,
                     [] { return std::make_unique<FakeJudge>(); }},
         .drafting = {bench.platform, bench.background, [this]() -> ModelAccess& { return model; },
                      [this]() -> QCoro::Task<QString> { co_return QString(unavailable); }}}};

    [[nodiscard]] const std::vector<Rule>& rules() const {
        return bench.store->folder(folderID)->rules;
    }
    Rule editSaved() {
        const Rule rule = bench.mover(u"pdf"_s, "Papers");
        bench.addRule(rule, folderID);
        editor.edit(folder, uuidText(rule.id));
        bench.background.finish();
        return rule;
    }
    /// Whether the sheet is gone.
    bool saves() {
        editor.save();
        bench.background.finish();
        return sheets.current().isEmpty();
    }
    void answer(bool yes) {
        ASSERT_TRUE(editor.question()->isOpen());
        yes ? editor.question()->agree() : editor.question()->decline();
        bench.background.finish();
    }
};

TEST_F(RuleEditorTest, ANewRuleIsAddedWhenItIsSavedAndNotBefore) {
    editor.create(folder);
    EXPECT_EQ(sheets.current(), u"RuleEditorSheet"_s);
    EXPECT_FALSE(editor.isChanged());
    EXPECT_EQ(editor.warnings().size(), 2);
    editor.setName(u"  "_s);
    editor.conditions()->setValue(0, u"invoice"_s);
    editor.actions()->setType(0, int(ActionType::trash));
    EXPECT_EQ(editor.conditionText() + u'|' + editor.actionText(),
              u"If name contains “invoice”|Move to Trash"_s);
    EXPECT_TRUE(rules().empty());
    EXPECT_TRUE(saves());
    ASSERT_EQ(rules().size(), 1U);
    EXPECT_EQ(rules()[0].name, u"Trash files"_s);
    EXPECT_EQ(bench.saved().folders[0].rules, rules());
}

TEST_F(RuleEditorTest, EveryFieldOfEveryActionArrives) {
    desktop.choice = "/srv/Chosen";
    editor.create(folder);
    editor.conditions()->setValue(0, u"x"_s);
    ActionListModel& actions = *editor.actions();
    actions.remove(0);
    for (const ActionType type : allCases<ActionType>())
        EXPECT_EQ(actions.add(int(type)), int(type));
    actions.setDestination(0, bench.path("Papers"));
    editor.chooseFolder(1);
    // Kept as text, this one would be another.
    desktop.choice = "/srv/Caf\xe9";
    editor.chooseFolder(1);
    EXPECT_FALSE(toasts.sentence().isEmpty());
    actions.setPattern(2, u"{date} {name}"_s);
    actions.setTag(4, u"gray"_s);
    actions.setTag(5, u"teal"_s); // there is none
    actions.setStrategy(6, int(SortStrategy::byExtension));
    actions.setKeepOriginal(7, true);
    actions.setShortcut(8, u"Shrink"_s);
    actions.setScript(9, u"touch \"$1\""_s);
    actions.move(10, 0);
    actions.move(1, 2);
    EXPECT_TRUE(saves());
    const std::vector<RuleAction>& saved = rules().at(0).actions;
    ASSERT_EQ(saved.size(), 11U);
    EXPECT_EQ(saved[0].type, ActionType::trash);
    EXPECT_EQ(saved[1].destination, u"/srv/Chosen"_s);
    EXPECT_EQ(saved[2].destination, bench.path("Papers"));
    EXPECT_EQ(saved[3].renamePattern, u"{date} {name}"_s);
    EXPECT_EQ(saved[5].tag, TagColor::gray);
    EXPECT_EQ(saved[6].tag, TagColor::blue);
    EXPECT_EQ(saved[7].sortBy, SortStrategy::byExtension);
    EXPECT_TRUE(saved[8].keepOriginal);
    EXPECT_EQ(saved[9].shortcutName, u"Shrink"_s);
    EXPECT_EQ(saved[10].scriptCommand, u"touch \"$1\""_s);
}

TEST_F(RuleEditorTest, EveryFieldOfAConditionArrives) {
    const Rule before = editSaved();
    ConditionListModel& conditions = *editor.conditions();
    editor.setMatchMode(int(MatchMode::any));
    editor.setIsEnabled(false);
    const int row = conditions.add();
    const auto shown = [&](int role) { return conditions.data(conditions.index(row), role); };
    EXPECT_EQ(shown(ConditionListModel::joinerRole), u"or"_s);
    conditions.setAttribute(row, int(ConditionAttribute::size));
    conditions.setOperator(row, 1);
    conditions.setUnit(row, int(SizeUnit::gb));
    EXPECT_EQ(editor.conditions()->data(conditions.index(row), ConditionListModel::editorRole),
              u"size"_s);
    // Neither a word nor nothing is a size.
    for (const QString& wrong : {u"big"_s, QString()}) {
        conditions.setValue(row, wrong);
        EXPECT_FALSE(saves());
        EXPECT_FALSE(shown(ConditionListModel::errorRole).toString().isEmpty());
        EXPECT_EQ(rules().at(0), before);
    }
    // As it is typed where the thousands are grouped, and saved before the field is left.
    conditions.setValue(row, u"2,000"_s);
    conditions.move(row, 0);
    EXPECT_TRUE(saves());
    const Rule& after = rules().at(0);
    EXPECT_EQ(after.id, before.id);
    EXPECT_EQ(after.matchMode, MatchMode::any);
    EXPECT_FALSE(after.isEnabled);
    ASSERT_EQ(after.conditions.size(), 2U);
    EXPECT_EQ(after.conditions[1], before.conditions[0]);
    EXPECT_EQ(after.conditions[0].attribute, ConditionAttribute::size);
    EXPECT_EQ(after.conditions[0].op, MatchOperator::lessThan);
    EXPECT_EQ(after.conditions[0].unit, SizeUnit::gb);
    EXPECT_EQ(after.conditions[0].value, u"2000"_s);
}

TEST_F(RuleEditorTest, AChangedDraftGoesOnlyWhenTheUserSaysSo) {
    const Rule before = editSaved();
    editor.setName(u"Mine"_s);
    int quits = 0;
    const std::vector<std::function<void()>> leavings{
        [&] { editor.cancel(); },
        [&] { sheets.open(u"HistorySheet"_s); },
        [&] { editor.create(folder); },
        [&] { sheets.leave([&] { ++quits; }); },
    };
    for (const auto& leave : leavings) {
        leave();
        answer(false);
        EXPECT_EQ(sheets.current(), u"RuleEditorSheet"_s);
        EXPECT_EQ(editor.name(), u"Mine"_s);
    }
    EXPECT_EQ(quits, 0);
    sheets.open(u"HistorySheet"_s);
    answer(true);
    EXPECT_EQ(sheets.current(), u"HistorySheet"_s);
    EXPECT_EQ(rules().at(0), before);
    EXPECT_FALSE(editor.isOpen());

    editor.edit(folder, uuidText(before.id));
    EXPECT_EQ(editor.name(), before.name);
    editor.cancel(); // unchanged, so nothing is asked
    EXPECT_EQ(sheets.current(), QString());
}

TEST_F(RuleEditorTest, WhatOthersDidToTheRuleMeanwhileIsSaidBeforeItIsReplaced) {
    const Rule before = editSaved();
    editor.setName(u"Mine"_s);
    bench.store->setRuleEnabled(false, before.id, folderID);
    EXPECT_FALSE(editor.notice().isEmpty());
    EXPECT_FALSE(saves());
    answer(false);
    EXPECT_EQ(rules().at(0).name, before.name);
    bench.store->deleteRule(before.id, folderID);
    EXPECT_FALSE(saves());
    answer(true);
    EXPECT_EQ(sheets.current(), QString());
    ASSERT_EQ(rules().size(), 1U);
    EXPECT_EQ(rules()[0].name, u"Mine"_s);

    editor.edit(folder, uuidText(before.id));
    editor.setName(u"Mine again"_s);
    bench.store->removeFolder(folderID);
    EXPECT_FALSE(saves());
    EXPECT_TRUE(editor.question()->yes().isEmpty());
    answer(false);
    EXPECT_EQ(editor.name(), u"Mine again"_s);
}

TEST_F(RuleEditorTest, DobbinsRuleIsOfferedWhereTheFormWasChangedMeanwhile) {
    model.answer = ruleAsJson(u"Papers"_s);
    editor.describe(folder, u"file papers"_s);
    EXPECT_TRUE(editor.dobbin()->isBusy());
    bench.background.finish();
    EXPECT_EQ(editor.name(), u"File papers"_s);
    EXPECT_EQ(editor.matchMode(), int(MatchMode::any));
    EXPECT_TRUE(editor.dobbin()->note().startsWith(u"I took papers to mean PDFs. "_s));

    editor.setName(u"Mine"_s);
    editor.dobbin()->draft();
    editor.conditions()->setValue(0, u"doc"_s);
    bench.background.finish();
    EXPECT_TRUE(editor.hasOffer());
    EXPECT_EQ(editor.name(), u"Mine"_s);
    editor.takeOffer();
    EXPECT_FALSE(editor.hasOffer());
    EXPECT_EQ(editor.conditions()->conditions().at(0).value, u"pdf"_s);

    editor.dobbin()->draft();
    editor.dobbin()->stop();
    bench.background.finish();
    EXPECT_FALSE(editor.hasOffer());
    model.answer = failure(ErrorKind::io, u"Dobbin is asleep."_s);
    editor.dobbin()->draft();
    EXPECT_EQ(editor.dobbin()->error(), u"Dobbin is asleep."_s);
    EXPECT_FALSE(editor.dobbin()->isBusy());
}

TEST_F(RuleEditorTest, WithoutDobbinTheSentenceSaysWhy) {
    unavailable = u"The on-device model isn’t running."_s;
    model.answer = ruleAsJson(u"Papers"_s);
    editor.describe(folder, u"file papers"_s);
    bench.background.finish();
    EXPECT_EQ(editor.dobbin()->unavailable(), unavailable);
    EXPECT_EQ(editor.name(), u"New Rule"_s);
}

TEST_F(RuleEditorTest, AFolderOfDobbinsOutsideOfTheUsersIsAskedAbout) {
    model.answer = ruleAsJson(u"/srv/elsewhere"_s);
    editor.describe(folder, u"file papers"_s);
    bench.background.finish();
    EXPECT_EQ(editor.dobbin()->warnings().size(), 1);
    EXPECT_FALSE(saves());
    EXPECT_TRUE(editor.question()->text().contains(u"/srv/elsewhere"_s));
    answer(false);
    EXPECT_TRUE(rules().empty());
    EXPECT_FALSE(saves());
    answer(true);
    EXPECT_EQ(rules().size(), 1U);

    // One that the user chose is theirs.
    editor.create(folder);
    editor.conditions()->setValue(0, u"x"_s);
    editor.actions()->setDestination(0, u"/srv/elsewhere"_s);
    EXPECT_TRUE(saves());
}

TEST_F(RuleEditorTest, ADeletedRuleComesBackToItsPlace) {
    const Rule first = editSaved();
    bench.addRule(bench.mover(u"txt"_s, "Texts"), folderID);
    editor.deleteRule();
    EXPECT_EQ(sheets.current(), QString());
    EXPECT_EQ(rules().size(), 1U);
    toasts.act();
    ASSERT_EQ(rules().size(), 2U);
    EXPECT_EQ(rules()[0], first);
}

TEST_F(RuleEditorTest, OpensTheRuleThatTheStoreIsAskedToHaveEdited) {
    const Rule rule = bench.mover(u"pdf"_s, "Papers");
    bench.store->setPendingRuleEdit(PendingRuleEdit{.folderID = folderID, .rule = rule});
    EXPECT_EQ(editor.rule(), rule);
    EXPECT_TRUE(editor.isNew());
    EXPECT_FALSE(bench.store->pendingRuleEdit());
    EXPECT_TRUE(saves());
    EXPECT_EQ(rules(), std::vector{rule});
}

TEST_F(RuleEditorTest, ShowsOnARealFileWhatAPatternMakesOfIt) {
    bench.disk.machine.write("Downloads/IMG_0042.jpg", "x");
    bench.touch("Downloads/IMG_0042.jpg", bench.clock.now() - std::chrono::hours(1));
    editor.create(folder);
    editor.conditions()->setOperator(0, 5);
    editor.conditions()->setValue(0, u"IMG_(\\d+)"_s);
    editor.actions()->setType(0, int(ActionType::rename));
    editor.actions()->setPattern(0, u"Photo {1} {counter:2}"_s);
    bench.timers.advance(std::chrono::milliseconds(250));
    bench.background.finish();
    const auto example =
        editor.actions()->data(editor.actions()->index(0), ActionListModel::exampleRole);
    EXPECT_EQ(example, u"For example IMG_0042.jpg → Photo 0042 01.jpg"_s);
}

} // namespace
} // namespace quillon::testing

#include "Items.h"
#include "model/Uuid.h"

#include <QCoreApplication>

#include <fstream>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;
using Attribute = ConditionAttribute;
using Operator = MatchOperator;

namespace {

RuleEditor& editorOf(Stage& stage) {
    return *stage.model.editor();
}

QString downloads(Stage& stage) {
    return uuidText(stage.home.folderID(u"Downloads"_s));
}

void editRule(Stage& stage, const QString& name) {
    editorOf(stage).edit(downloads(stage), uuidText(stage.home.ruleID(name)));
}

/// Edits a rule that isn't one of the home's.
void editMade(Stage& stage, const Rule& rule) {
    stage.store.saveRule(rule, stage.home.folderID(u"Downloads"_s));
    editorOf(stage).edit(downloads(stage), uuidText(rule.id));
}

void showReceipts(Stage& stage) {
    Rule rule{
        .name = u"Name and file receipts"_s,
        .conditions = {{.attribute = Attribute::whereFrom, .value = u"amazon.com"_s},
                       {.attribute = Attribute::dobbinSays,
                        .op = Operator::is,
                        .value = u"a receipt or invoice"_s},
                       {.attribute = Attribute::size, .op = Operator::lessThan, .value = u"20"_s}},
        .actions = {{.type = ActionType::renameWithDobbin},
                    {.type = ActionType::move,
                     .destination = QString::fromStdString(stage.home.at("Documents/Receipts"))},
                    {.type = ActionType::addTag, .tag = TagColor::green}}};
    editMade(stage, rule);
}

void showEveryValue(Stage& stage) {
    Rule rule{
        .name = u"Every value"_s, .matchMode = MatchMode::any, .conditions = {}, .actions = {}};
    for (const auto& [attribute, op, value] : std::vector<std::tuple<Attribute, Operator, QString>>{
             {Attribute::fullName, Operator::matchesRegex, u"^IMG_(\\d+"_s},
             {Attribute::kind, Operator::is, u"archive"_s},
             {Attribute::tag, Operator::isNot, u"purple"_s},
             {Attribute::lastOpened, Operator::olderThanDays, u"thirty"_s},
             {Attribute::dateAdded, Operator::before, u"2026-10-14"_s}})
        rule.conditions.push_back({.attribute = attribute, .op = op, .value = value});
    editMade(stage, rule);
}

void showEveryAction(Stage& stage) {
    std::ofstream(stage.home.at("Downloads/one.pdf")) << "one";
    Rule rule{.name = u"Every action"_s,
              .conditions = {{.attribute = Attribute::extension, .value = u"pdf"_s}},
              .actions = {}};
    for (const ActionType type : allCases<ActionType>())
        rule.actions.push_back({.type = type, .renamePattern = u"{date} {name} {counter:3}"_s});
    editMade(stage, rule);
}

void draftWithDobbin(Stage& stage) {
    editorOf(stage).describe(downloads(stage),
                             u"Give receipts from amazon.com a proper name, file them in "
                             "Receipts and tag them green"_s);
}

void offerDraft(Stage& stage) {
    draftWithDobbin(stage);
    editorOf(stage).setName(u"Mine"_s);
}

void askToDiscard(Stage& stage) {
    editRule(stage, u"File invoices"_s);
    editorOf(stage).setName(u"Another name"_s);
    editorOf(stage).cancel();
}

void changeElsewhere(Stage& stage) {
    editRule(stage, u"File invoices"_s);
    stage.store.setRuleEnabled(false, stage.home.ruleID(u"File invoices"_s),
                               stage.home.folderID(u"Downloads"_s));
}

/// Scrolled to its end.
void showLastActions(Stage& stage) {
    showEveryAction(stage);
    later(stage, [&stage] {
        auto* const scroller =
            findItem(stage, "RuleEditorSheet")->property("scroller").value<QQuickItem*>();
        scroller->setProperty("contentY",
                              scroller->property("contentHeight").toReal() - scroller->height());
    });
}

std::function<void(Stage&)> editing(const QString& name, const std::function<void(Stage&)>& then) {
    return [=](Stage& stage) {
        editRule(stage, name);
        then(stage);
    };
}

void showCaught(Stage& stage) {
    later(stage, [&stage] { findItem(stage, "ProbeBar")->setProperty("isOpen", true); });
}

void showCalendar(Stage& stage) {
    showEveryValue(stage);
    later(stage, [&stage] {
        QMetaObject::invokeMethod(findItem(findItem(stage, "DateField"), "IconButton"), "clicked");
    });
}

void draftSlowly(Stage& stage) {
    stage.server.play("/api/chat", ModelServer::Answer{.isSilent = true});
    draftWithDobbin(stage);
}

void draftInVain(Stage& stage) {
    stage.server.play("/api/chat", ModelServer::Answer{.status = 500});
    draftWithDobbin(stage);
}

} // namespace

std::vector<Scene> editorScenes() {
    // A sheet comes over a window that has its size.
    const auto scene = [](const QString& name, const std::function<void(Stage&)>& arrange) {
        return Scene{.name = name, .arrange = [arrange](Stage& stage) {
                         QCoreApplication::processEvents();
                         arrange(stage);
                     }};
    };
    return {
        scene(u"editor-new"_s, [](Stage& stage) { editorOf(stage).create(downloads(stage)); }),
        scene(u"editor-receipts"_s, showReceipts),
        scene(u"editor-invoices"_s, [](Stage& stage) { editRule(stage, u"File invoices"_s); }),
        scene(u"editor-values"_s, showEveryValue),
        scene(u"editor-actions"_s, showEveryAction),
        scene(u"editor-actions-end"_s, showLastActions),
        scene(u"editor-caught"_s, editing(u"File invoices"_s, showCaught)),
        scene(u"editor-picker"_s, editing(u"File invoices"_s, opening("PillPicker", 1))),
        scene(u"editor-add-action"_s,
              editing(u"File invoices"_s, calling("AddActionButton", "open"))),
        scene(u"editor-calendar"_s, showCalendar),
        scene(u"editor-drafting"_s, draftSlowly),
        scene(u"editor-draft-failed"_s, draftInVain),
        scene(u"editor-without-dobbin"_s,
              [](Stage& stage) {
                  stage.server.haveModels({});
                  editorOf(stage).create(downloads(stage));
              }),
        scene(u"editor-dobbin"_s, draftWithDobbin),
        scene(u"editor-offer"_s, offerDraft),
        scene(u"editor-discard"_s, askToDiscard),
        scene(u"editor-elsewhere"_s, changeElsewhere),
    };
}

} // namespace quillon::testing

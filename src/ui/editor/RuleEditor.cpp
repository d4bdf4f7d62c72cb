#include "ui/editor/RuleEditor.h"

#include "assistant/RuleDestination.h"
#include "assistant/RuleName.h"
#include "assistant/ValueWarnings.h"
#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "model/Uuid.h"
#include "platform/FileNames.h"
#include "store/RuleEdits.h"
#include "ui/FolderNames.h"
#include "ui/RuleRemoval.h"
#include "ui/editor/EditedRows.h"
#include "ui/editor/Shortcuts.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView arrow = u" → ";

RulePlace placeOf(const QUuid& folderID, const AppStore& store) {
    RulePlace place;
    for (const WatchedFolder& folder : store.folders())
        if (folder.id == folderID)
            place.folder = folder;
        else
            place.otherFolders.push_back(folder);
    return place;
}

/// What counts for which files the rule catches, so that nothing else is a reason to look again.
Rule catching(Rule rule) {
    rule.name.clear();
    rule.isEnabled = true;
    std::erase_if(rule.actions, [](const RuleAction& action) {
        return action.type != ActionType::renameWithDobbin;
    });
    return rule;
}

QSet<QString> destinations(const Rule& rule) {
    QSet<QString> found;
    for (const RuleAction& action : rule.actions)
        if (action.destination && !action.destination->isEmpty() &&
            (action.type == ActionType::move || action.type == ActionType::copy))
            found.insert(*action.destination);
    return found;
}

} // namespace

RuleEditor::RuleEditor(const Surroundings& around, QObject* parent)
    : QObject(parent)
    , around_(around)
    , store_(around.store)
    , probe_(around.probing)
    , dobbin_(around.drafting) {
    connect(&conditions_, &ConditionListModel::edited, this, &RuleEditor::draftEdited);
    connect(&actions_, &ActionListModel::edited, this, &RuleEditor::draftEdited);
    connect(&probe_, &RuleProbe::changed, this, [this] {
        actions_.setExample(probe_.found() ? probe_.found()->example : std::nullopt);
    });
    connect(&dobbin_, &RuleDrafting::started, this, [this] { beforeDobbin_ = draft_; });
    connect(&dobbin_, &RuleDrafting::drafted, this, &RuleEditor::takeDrafted);
    connect(&store_, &AppStore::foldersChanged, this, &RuleEditor::foldersEdited);
    connect(&store_, &AppStore::pendingRuleEditChanged, this, &RuleEditor::openPending);
    connect(&around.sheets, &Sheets::currentChanged, this, [this] {
        if (around_.sheets.current() != "RuleEditorSheet"_L1)
            forget();
    });
    around.sheets.setGuard([this](const auto& proceed) { return mayGo(proceed); });
}

RuleEditor::~RuleEditor() {
    *session_ = false;
}

void RuleEditor::edit(const QString& folderId, const QString& ruleId) {
    const auto folderID = uuidFromText(folderId);
    const auto ruleID = uuidFromText(ruleId);
    const WatchedFolder* const folder = folderID ? store_.folder(*folderID) : nullptr;
    const Rule* const rule = folder && ruleID ? findRule(folder->rules, *ruleID) : nullptr;
    if (rule)
        open({.folderID = *folderID, .rule = *rule, .isNew = false});
}

void RuleEditor::create(const QString& folderId) {
    if (const auto folderID = uuidFromText(folderId))
        open({.folderID = *folderID, .rule = {}});
}

void RuleEditor::describe(const QString& folderId, const QString& sentence) {
    if (const auto folderID = uuidFromText(folderId))
        open({.folderID = *folderID, .rule = {}, .isNew = true, .sentence = sentence});
}

void RuleEditor::openPending() {
    const std::optional<PendingRuleEdit> pending = store_.pendingRuleEdit();
    if (!pending)
        return;
    store_.setPendingRuleEdit(std::nullopt);
    const WatchedFolder* const folder = store_.folder(pending->folderID);
    if (folder)
        open({.folderID = pending->folderID,
              .rule = pending->rule,
              .isNew = !findRule(folder->rules, pending->rule.id)});
}

void RuleEditor::open(const Opening& opening) {
    around_.sheets.leave([this, opening] {
        if (store_.folder(opening.folderID))
            show(opening);
    });
}

void RuleEditor::show(const Opening& opening) {
    forget();
    folderID_ = opening.folderID;
    isNew_ = opening.isNew;
    opened_ = opening.rule;
    draft_ = opening.rule;
    foldersEdited();
    listShortcuts();
    show(opening.rule);
    probe_.open(*store_.folder(folderID_));
    probe_.setRule(catching(draft_));
    dobbin_.open(placeOf(folderID_, store_), opening.sentence);
    Q_EMIT opened();
    around_.sheets.open(u"RuleEditorSheet"_s);
    if (!opening.sentence.isEmpty())
        dobbin_.draft();
}

void RuleEditor::show(const Rule& rule) {
    {
        const QScopedValueRollback<bool> showing(isShowing_, true);
        draft_ = rule;
        conditions_.setMatchMode(rule.matchMode);
        conditions_.setConditions(rule.conditions);
        actions_.setActions(rule.actions);
    }
    draftEdited();
}

/// Of a sheet that is gone. What still comes for it is dropped.
void RuleEditor::forget() {
    *session_ = false;
    session_ = std::make_shared<bool>(true);
    question_.decline();
    probe_.close();
    dobbin_.stop();
    isDobbins_ = false;
    dobbinsFolders_.clear();
    beforeDobbin_.reset();
    dropOffer();
    if (!std::exchange(opened_, std::nullopt))
        return;
    notice_.clear();
    Q_EMIT noticeChanged();
    Q_EMIT opened();
}

bool RuleEditor::mayGo(const std::function<void()>& proceed) {
    if (!isChanged())
        return true;
    question_.ask({.title = tr("Discard your changes?"),
                   .text = {},
                   .yes = tr("Discard"),
                   .no = tr("Keep Editing"),
                   .isDestructive = true},
                  [this, proceed] {
                      around_.sheets.close();
                      proceed();
                  });
    return false;
}

void RuleEditor::cancel() {
    around_.sheets.leave([this] { around_.sheets.close(); });
}

QString RuleEditor::folderId() const {
    return uuidText(folderID_);
}

QString RuleEditor::shortcutsPlace() const {
    return choices_.place(shortcutsFolder(around_.probing.platform));
}

void RuleEditor::setName(const QString& name) {
    if (draft_.name == name)
        return;
    draft_.name = name;
    draftEdited();
}

void RuleEditor::setIsEnabled(bool enabled) {
    if (draft_.isEnabled == enabled)
        return;
    draft_.isEnabled = enabled;
    draftEdited();
}

void RuleEditor::setMatchMode(int index) {
    if (index < 0 || index >= int(rawValues<MatchMode>.size()) || index == matchMode())
        return;
    draft_.matchMode = MatchMode(index);
    conditions_.setMatchMode(draft_.matchMode);
    draftEdited();
}

QStringList RuleEditor::matchModes() {
    return {tr("All"), tr("Any"), tr("None")};
}

QString RuleEditor::matchModeTail() const {
    return draft_.matchMode == MatchMode::any ? tr("of these is true") : tr("of these are true");
}

bool RuleEditor::isChanged() const {
    return opened_ && draft_ != *opened_;
}

QString RuleEditor::conditionText() const {
    const QString text = sentence();
    return text.left(text.indexOf(arrow));
}

QString RuleEditor::actionText() const {
    const QString text = sentence();
    return text.sliced(text.indexOf(arrow) + arrow.size());
}

QString RuleEditor::sentence() const {
    return summary(draft_);
}

QStringList RuleEditor::warnings() const {
    QStringList told = validationWarnings(draft_) + valueWarnings(draft_);
    told.removeDuplicates();
    return told;
}

void RuleEditor::draftEdited() {
    if (isShowing_)
        return;
    draft_.conditions = conditions_.conditions();
    draft_.actions = actions_.actions();
    if (opened_)
        probe_.setRule(catching(draft_));
    Q_EMIT edited();
}

void RuleEditor::takeDrafted(const Rule& rule) {
    if (beforeDobbin_ == draft_)
        return useDrafted(rule);
    offer_ = rule;
    Q_EMIT offerChanged();
}

void RuleEditor::useDrafted(const Rule& rule) {
    Rule mine = rule;
    mine.id = draft_.id;
    mine.isEnabled = draft_.isEnabled;
    isDobbins_ = true;
    dobbinsFolders_ += destinations(mine);
    show(mine);
}

void RuleEditor::takeOffer() {
    if (const auto offer = std::exchange(offer_, std::nullopt)) {
        Q_EMIT offerChanged();
        useDrafted(*offer);
    }
}

void RuleEditor::dropOffer() {
    if (std::exchange(offer_, std::nullopt))
        Q_EMIT offerChanged();
}

void RuleEditor::chooseFolder(int actionRow) {
    const auto& actions = actions_.actions();
    if (actionRow < 0 || actionRow >= actions_.count())
        return;
    const RuleAction& action = actions[std::size_t(actionRow)];
    const QString shown = action.destination ? choices_.full(*action.destination)
                                             : choices_.look(folderID_).value(u"path"_s).toString();
    const auto chosen = [this, session = session_,
                         id = action.id](std::optional<std::string> path) {
        if (!*session || !path || !canBeKept(*path, around_.toasts))
            return;
        const auto& now = actions_.actions();
        const auto found = std::ranges::find(now, id, &RuleAction::id);
        if (found != now.end())
            actions_.setDestination(int(found - now.begin()), QString::fromStdString(*path));
    };
    around_.fileChooser.chooseFolder(tr("Choose a folder for the files"), shown.toStdString(),
                                     chosen);
}

void RuleEditor::foldersEdited() {
    if (!opened_)
        return;
    choices_ = FolderChoices(store_.folders(), around_.probing.platform.folders.home);
    actions_.setFolders(choices_);
    Q_EMIT foldersChanged();
    const QString happened = whatHappened();
    if (happened == notice_)
        return;
    notice_ = happened;
    Q_EMIT noticeChanged();
}

void RuleEditor::listShortcuts() {
    const auto found = std::make_shared<QStringList>();
    around_.probing.background.start(
        [found, &platform = around_.probing.platform] { *found = shortcutNames(platform); },
        [this, found, session = session_] {
            if (!*session || shortcuts_ == *found)
                return;
            shortcuts_ = *found;
            Q_EMIT shortcutsChanged();
        });
}

const Rule* RuleEditor::savedRule() const {
    const WatchedFolder* const folder = store_.folder(folderID_);
    return folder ? findRule(folder->rules, draft_.id) : nullptr;
}

QString RuleEditor::whatHappened() const {
    if (!store_.folder(folderID_))
        return tr("This folder isn’t watched any more, so the rule can’t be saved.");
    if (isNew_)
        return {};
    const Rule* const saved = savedRule();
    if (!saved)
        return tr("This rule has been deleted elsewhere. Saving adds it again.");
    return *saved == *opened_
               ? QString()
               : tr("This rule has been changed elsewhere. Saving replaces those changes.");
}

void RuleEditor::save() {
    if (!opened_)
        return;
    if (const int row = conditions_.check(); row >= 0) {
        Q_EMIT wrongCondition(row);
        return;
    }
    if (!askAboutOthersChange())
        checkDestinations();
}

/// Whether there is one, and so the question is open.
bool RuleEditor::askAboutOthersChange() {
    if (whatHappened().isEmpty())
        return false;
    Question::Words words{.title = tr("Save it all the same?"),
                          .text = whatHappened(),
                          .yes = savedRule() ? tr("Replace") : tr("Add Again"),
                          .no = tr("Keep Editing"),
                          .isDestructive = savedRule() != nullptr};
    if (!store_.folder(folderID_)) {
        words.title = tr("The rule can’t be saved");
        words.yes.clear();
    }
    question_.ask(std::move(words), [this] { checkDestinations(); });
    return true;
}

/// Where Dobbin sends files, the user may not have looked.
void RuleEditor::checkDestinations() {
    const QSet<QString> doubtful = destinations(draft_) & dobbinsFolders_;
    if (doubtful.isEmpty())
        return commit();
    const auto found = std::make_shared<QStringList>();
    around_.probing.background.start(
        [found, doubtful, place = placeOf(folderID_, store_),
         &platform = around_.probing.platform] {
            for (const QString& destination : doubtful)
                if (const auto warning = destinationWarning(destination, place, platform))
                    found->append(*warning);
        },
        [this, found, checked = draft_, session = session_] {
            if (!*session || checked != draft_)
                return;
            if (found->isEmpty())
                return commit();
            question_.ask({.title = tr("Dobbin’s rule points outside your folders"),
                           .text = found->join(u'\n'),
                           .yes = tr("Save Anyway"),
                           .no = tr("Keep Editing")},
                          [this] { commit(); });
        });
}

void RuleEditor::commit() {
    Rule rule = draft_;
    if (rule.name.trimmed().isEmpty())
        rule.name = shortName(rule);
    const QUuid folderID = folderID_;
    const bool isAdded = isNew_ || !savedRule();
    const RuleSource source = isDobbins_ ? RuleSource::dobbin : RuleSource::manual;
    around_.sheets.close();
    if (isAdded)
        store_.addRules({rule}, folderID, source);
    else
        store_.saveRule(rule, folderID);
    if (const auto& error = store_.lastSaveError())
        around_.toasts.show(error->message);
}

void RuleEditor::deleteRule() {
    const Rule* const saved = savedRule();
    if (!opened_ || isNew_ || !saved)
        return;
    const QUuid ruleID = saved->id;
    const QUuid folderID = folderID_;
    around_.sheets.close();
    removeRule(ruleID, folderID, store_, around_.toasts);
}

} // namespace quillon

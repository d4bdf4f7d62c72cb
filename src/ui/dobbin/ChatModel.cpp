#include "ui/dobbin/ChatModel.h"

#include "model/Uuid.h"
#include "store/SettingsTable.h"
#include "ui/TimeTexts.h"

#include <algorithm>
#include <ranges>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

ChatModel::ChatModel(Surroundings around, QObject* parent)
    : QObject(parent), around_(std::move(around)), place_(tr("On this computer")) {
    for (const auto signal : {&AppStore::recentLogsChanged, &AppStore::dayChanged})
        connect(&around_.store, signal, this, &ChatModel::refresh);
    connect(&around_.sheets, &Sheets::currentChanged, this, &ChatModel::sheetChanged);
    if (settingTruth(around_.settings, u"dobbin.panelOpen"))
        setOpen(true);
}

void ChatModel::setOpen(bool open) {
    if (isOpen_ == open)
        return;
    isOpen_ = open;
    // A panel whose state can't be kept opens and closes all the same.
    (void)chat().setOpen(open);
    refresh();
    if (open)
        refreshPlace();
    Q_EMIT isOpenChanged();
}

void ChatModel::toggle() {
    if (isOpen_)
        setOpen(false);
    else
        focus();
}

void ChatModel::focus() {
    setOpen(true);
    chat().requestFocus();
}

bool ChatModel::ask(const QString& question) {
    refreshPlace();
    return chat().ask(question);
}

void ChatModel::stop() {
    chat().stop();
}

void ChatModel::askAgain(const QString& turnKey) {
    const auto& turns = chat().turns();
    const auto failed =
        std::ranges::find(turns, turnKey, [](const ChatTurn& turn) { return uuidText(turn.id); });
    const auto before = std::ranges::subrange(turns.begin(), failed) | std::views::reverse;
    const auto question = std::ranges::find(before, true, &ChatTurn::isUser);
    if (question != before.end())
        ask(QString(question->text));
}

void ChatModel::carryOut(const QString& turnKey, int change) {
    const auto id = uuidFromText(turnKey);
    const auto& turns = chat().turns();
    const auto turn = std::ranges::find(turns, id.value_or(QUuid()), &ChatTurn::id);
    if (turn == turns.end() || change < 0 || std::size_t(change) >= turn->actions.size())
        return;
    const DobbinAction action = turn->actions[std::size_t(change)];
    if (action.kind != DobbinAction::Kind::writeRule)
        return tell(chat().apply(*id, std::size_t(change)));
    if (!around_.store.folder(action.folderID))
        return tell(
            failure(ErrorKind::notFound, tr("“%1” is no longer watched").arg(action.folderName)));
    around_.writeRule(uuidText(action.folderID), action.description.value_or(QString()));
    writing_ = Writing{*id, std::size_t(change), action.folderID, rulesOf(action.folderID)};
}

/// A rule that was to be written is done once there is a rule more when the editor has closed.
void ChatModel::sheetChanged() {
    if (!writing_ || around_.sheets.current() == u"RuleEditorSheet")
        return;
    const Writing writing = *std::exchange(writing_, std::nullopt);
    if (!(rulesOf(writing.folderID) - writing.rulesBefore).isEmpty())
        (void)chat().apply(writing.turnID, writing.change);
}

QSet<QUuid> ChatModel::rulesOf(const QUuid& folderID) const {
    QSet<QUuid> ids;
    if (const WatchedFolder* const folder = around_.store.folder(folderID))
        for (const Rule& rule : folder->rules)
            ids.insert(rule.id);
    return ids;
}

void ChatModel::tell(const Expected<QString>& outcome) {
    around_.toasts.show((outcome ? *outcome : outcome.error().message) + u'.');
}

QStringList ChatModel::examples() const {
    const QStringList all{tr("What can you do?"), tr("What did you tidy today?"),
                          tr("Where did my latest download go?"), tr("How do I undo something?")};
    if (isEmpty())
        return all;
    const QDate today = localDay(around_.clock.now());
    const bool hasAskedToday = std::ranges::any_of(chat_->turns(), [&](const ChatTurn& turn) {
        return turn.isUser && localDay(turn.date) == today;
    });
    return hasAskedToday ? QStringList() : all.first(2);
}

QString ChatModel::lastQuestion() const {
    const auto backwards = rows_.rows() | std::views::reverse;
    const auto question = std::ranges::find(backwards, true, &ChatRow::isUser);
    return question == backwards.end() ? QString() : question->text;
}

DobbinChat& ChatModel::chat() {
    if (chat_)
        return *chat_;
    chat_ = &around_.chat();
    connect(chat_, &DobbinChat::turnsChanged, this, &ChatModel::takeTurns);
    connect(chat_, &DobbinChat::isThinkingChanged, this, &ChatModel::changed);
    connect(chat_, &DobbinChat::focusRequestChanged, this, &ChatModel::focusRequested);
    warning_ = chat_->takeWarning().value_or(QString());
    refresh();
    return *chat_;
}

void ChatModel::takeTurns() {
    std::vector<QUuid> answers;
    for (const ChatTurn& turn : chat_->turns())
        if (!turn.isUser && !rows_.row(uuidText(turn.id)))
            answers.push_back(turn.id);
    refresh();
    for (const QUuid& id : answers) {
        // What it offers has been seen, and may be meant by its number alone.
        if (isOpen_)
            chat_->noteShown(id);
        if (const ChatRow* const row = rows_.row(uuidText(id)))
            Q_EMIT answered(row->spoken);
    }
}

void ChatModel::refresh() {
    if (!chat_)
        return;
    rows_.setRows(chatRows(chat_->turns(), around_.store.recentLogs(), around_.clock.now()));
    refreshNotice();
    Q_EMIT changed();
}

void ChatModel::refreshNotice() {
    const auto& unsaved = chat_->lastSaveError();
    notice_ = unsaved ? tr("The conversation can’t be saved (%1). The next question tries again.")
                            .arg(unsaved->message)
                      : warning_;
}

QCoro::Task<> ChatModel::refreshPlace() {
    const QPointer<ChatModel> alive(this);
    AIManager& manager = around_.assistant();
    for (const auto signal : {&AIManager::settingsChanged, &AIManager::keySuffixChanged})
        connect(&manager, signal, this, &ChatModel::refreshPlace, Qt::UniqueConnection);
    const bool asksClaude = co_await manager.asksClaude();
    if (!alive)
        co_return;
    place_ = asksClaude ? label(around_.assistant().claudeModel()) : tr("On this computer");
    Q_EMIT changed();
}

} // namespace quillon

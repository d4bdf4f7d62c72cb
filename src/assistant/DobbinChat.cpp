#include "assistant/DobbinChat.h"

#include "assistant/AskDobbin.h"
#include "assistant/ChatHistory.h"
#include "assistant/EntriesShown.h"
#include "assistant/PlainLine.h"
#include "assistant/backends/AIError.h"
#include "assistant/backends/AIManager.h"
#include "assistant/backends/Later.h"
#include "store/SettingsTable.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::u16string_view panelOpen = u"dobbin.panelOpen";

/// What a backend has room for.
struct Room {
    std::size_t entries;
    MessageSize message;
    ChatDepth earlier;
};
constexpr Room claudeRoom{
    .entries = 25, .message = MessageSize::claude, .earlier = {.exchanges = 8, .tokens = 6000}};
constexpr Room localRoom{
    .entries = 10, .message = MessageSize::onDevice, .earlier = {.exchanges = 2, .tokens = 400}};

constexpr qsizetype longestText = 20'000;

/// What a file of ours can hold: no NUL character, no half of a surrogate pair, no end of it.
QString storable(QString text) {
    text.remove(QChar(u'\0'));
    return cutTo(QString::fromUtf8(text.toUtf8()), longestText).trimmed();
}

QDateTime localNow(const Clock& clock) {
    const auto now = std::chrono::floor<std::chrono::milliseconds>(clock.now());
    return QDateTime::fromMSecsSinceEpoch(now.time_since_epoch().count());
}

/// Those of files that are shown and of rules that the answer speaks of: a last rule for whatever
/// is left competes with every other one, which is as it should be. An answer that proposes nothing
/// has to speak of both rules.
std::vector<RuleConflict> conflictsMeant(const std::vector<RuleConflict>& conflicts,
                                         const ChatTurn& answer, bool proposes) {
    const auto speaksOf = [&](const QString& rule) {
        return answer.text.contains(rule, Qt::CaseInsensitive);
    };
    std::vector<RuleConflict> meant;
    std::ranges::copy_if(conflicts, std::back_inserter(meant), [&](const RuleConflict& conflict) {
        return speaksOf(conflict.laterName) && (proposes || speaksOf(conflict.earlierName)) &&
               std::ranges::find(answer.entries, conflict.fileName, &LogEntry::fileName) !=
                   answer.entries.end();
    });
    return meant;
}

} // namespace

/// What a question is answered from. The background works on it while nobody else does.
struct DobbinChat::Material {
    std::vector<LogEntry> entries;
    std::vector<WatchedFolder> folders;
    std::vector<RuleConflict> conflicts = {};
    QString message = {};
};

DobbinChat::DobbinChat(Surroundings surroundings, std::string path, QObject* parent)
    : QObject(parent)
    , around_(std::move(surroundings))
    , file_(around_.storage, std::move(path))
    , life_(std::make_shared<int>()) {
    load();
}

DobbinChat::~DobbinChat() {
    life_.reset();
    dropThought();
}

/// What is sent for it fails soon after, and finds that nobody waits.
void DobbinChat::dropThought() {
    if (!thought_)
        return;
    const std::stop_source asking = *thought_;
    thought_.reset();
    asking.request_stop();
}

bool DobbinChat::isOpen() const {
    return settingTruth(around_.settings, panelOpen);
}

Expected<void> DobbinChat::setOpen(bool open) {
    if (open == isOpen())
        return {};
    auto set = setSetting(around_.settings, *findSetting(panelOpen), open ? u"true"_s : u"false"_s);
    if (set)
        Q_EMIT isOpenChanged();
    return set;
}

void DobbinChat::requestFocus() {
    ++focusRequest_;
    Q_EMIT focusRequestChanged();
}

std::optional<QString> DobbinChat::takeWarning() {
    return std::exchange(warning_, std::nullopt);
}

bool DobbinChat::ask(const QString& question, std::function<void(const ChatTurn&)> answered) {
    ChatTurn turn{.isUser = true, .text = storable(question), .date = around_.platform.clock.now()};
    if (turn.text.isEmpty())
        return false;
    questions_.push_back({turn.id, turn.text, std::move(answered)});
    const std::weak_ptr<const void> life = life_;
    add(std::move(turn), {});
    if (life.expired() || isThinking_)
        return true;
    setThinking(true);
    if (!life.expired())
        think();
    return true;
}

void DobbinChat::stop() {
    const std::weak_ptr<const void> life = life_;
    dropThought();
    for (const Question& question : std::exchange(questions_, {})) {
        const ChatTurn answer{.text = u"Stopped before there was an answer."_s,
                              .isError = true,
                              .date = around_.platform.clock.now()};
        add(answer, question.turnID);
        if (!life.expired() && question.answered)
            question.answered(answer);
        if (life.expired())
            return;
    }
    if (!questions_.empty())
        think(); // whoever heard of it has asked something
    else if (isThinking_)
        setThinking(false);
}

QCoro::Task<> DobbinChat::think() {
    thought_ = std::make_shared<std::stop_source>();
    const std::weak_ptr<const void> life = thought_;
    while (!questions_.empty()) {
        const Question question = questions_.front();
        std::optional<ChatTurn> answer;
        if (isHelpQuestion(question.text)) {
            answer.emplace().text = helpAnswer();
        } else {
            auto answering = answerOfModel(question.turnID, question.text);
            answer = co_await answering;
        }
        if (life.expired() || !answer)
            co_return;
        questions_.pop_front();
        answer->date = around_.platform.clock.now();
        add(*answer, question.turnID);
        // Whoever hears of it may let this go.
        if (!life.expired() && question.answered)
            question.answered(*answer);
        if (life.expired())
            co_return;
    }
    setThinking(false);
}

QCoro::Task<std::optional<ChatTurn>> DobbinChat::answerOfModel(QUuid questionID, QString question) {
    const std::weak_ptr<const void> life = thought_;
    const bool toClaude = co_await around_.assistant().asksClaude();
    if (life.expired())
        co_return std::nullopt;
    const Room room = toClaude ? claudeRoom : localRoom;
    const QDateTime now = localNow(around_.platform.clock);
    const auto material = std::make_shared<Material>();
    auto relevant = relevantEntries(question, around_.store.recentLogs(), now, room.entries);
    material->entries = std::move(relevant.entries);
    material->folders = around_.store.folders();
    Later<bool> compared(
        [&](std::function<void(bool)> done) {
            around_.background.start(
                [material, &platform = around_.platform, &judge = around_.judge] {
                    material->conflicts =
                        conflicts(material->entries, material->folders, platform, judge);
                },
                [done = std::move(done)] { done(true); });
        },
        false);
    (void)co_await compared;
    if (life.expired())
        co_return std::nullopt;

    material->message = compose(question, material->entries, material->folders, material->conflicts,
                                room.message, relevant.matching);
    AIRequest request{.system = systemPrompt(now),
                      .messages = earlierMessages(turns_, questionID, room.earlier)};
    request.messages.append({.role = AIMessage::Role::user, .text = material->message});
    request.stop = thought_->get_token();
    const Expected<QString> answer = co_await around_.assistant().send(std::move(request));
    if (life.expired())
        co_return std::nullopt;
    ChatTurn turn{.text = storable(answer.value_or(QString()))};
    turn.isError = turn.text.isEmpty();
    if (turn.isError) {
        const Error muddled = asError(AIError{.kind = AIError::Kind::badResponse, .detail = {}});
        turn.text = storable(answer ? muddled.message : answer.error().message);
        co_return turn;
    }
    turn.entries = entriesShown(turn.text, material->entries);
    auto suggesting = suggestedChanges(material, turn);
    turn.actions = co_await suggesting;
    co_return turn;
}

QCoro::Task<std::vector<DobbinAction>>
DobbinChat::suggestedChanges(std::shared_ptr<Material> material, ChatTurn answer) {
    const std::weak_ptr<const void> life = thought_;
    std::vector<DobbinAction> actions;
    const bool proposes = suggestsChange(answer.text);
    if (proposes) {
        AIRequest request{.system = extractionPrompt(),
                          .messages = {{.role = AIMessage::Role::user,
                                        .text = extractionMessage(material->message, answer.text)}},
                          .schema = actionsOnlySchema(),
                          .stop = thought_->get_token()};
        const Expected<QString> list = co_await around_.assistant().send(std::move(request));
        if (life.expired())
            co_return actions;
        // The model found nothing that its answer proposes: it may argue against the very order
        // that we would offer. A list that can't be had or read says nothing of that.
        if (list && saysNoChange(*list))
            co_return actions;
        // An answer without its changes is an answer still. Folders may have gone since.
        if (list)
            actions = actionsFromJson(*list, around_.store.folders());
    }
    const auto more = fixes(conflictsMeant(material->conflicts, answer, proposes), actions,
                            around_.store.folders());
    actions.insert(actions.end(), more.begin(), more.end());
    for (DobbinAction& action : actions)
        if (action.description)
            action.description = storable(*action.description);
    co_return actions;
}

Expected<QString> DobbinChat::apply(const QUuid& turnID, std::size_t action) {
    const auto find = [&] {
        const auto turn = std::ranges::find(turns_, turnID, &ChatTurn::id);
        return turn == turns_.end() || action >= turn->actions.size() ? nullptr
                                                                      : &turn->actions[action];
    };
    const DobbinAction* const change = find();
    if (!change)
        return failure(ErrorKind::notFound, u"This change is not in the conversation any more"_s);
    const DobbinAction wanted = *change;
    Expected<QString> happened = quillon::apply(wanted, around_.store);
    if (!happened)
        return happened;
    // Whoever heard of it from the store may have asked something since.
    if (DobbinAction* const done = find()) {
        done->done = true;
        save();
        Q_EMIT turnsChanged();
    }
    return happened;
}

void DobbinChat::noteShown(const QUuid& turnID) {
    const auto turn = std::ranges::find(turns_, turnID, &ChatTurn::id);
    if (turn == turns_.end() || turn->actions.empty() || turn->wasShown)
        return;
    turn->wasShown = true;
    save();
    Q_EMIT turnsChanged();
}

/// At the end, unless there is a turn that it comes after.
void DobbinChat::add(ChatTurn turn, const QUuid& after) {
    const auto before = std::ranges::find(turns_, after, &ChatTurn::id);
    turns_.insert(before == turns_.end() ? before : before + 1, std::move(turn));
    save();
    Q_EMIT turnsChanged();
}

void DobbinChat::load() {
    auto loaded = file_.load(around_.platform.clock.now());
    isLoaded_ = loaded.has_value();
    if (!loaded) {
        lastSaveError_ = loaded.error();
        return;
    }
    if (loaded->warning)
        warning_ = std::move(loaded->warning);
    turns_.insert(turns_.begin(), std::move_iterator(loaded->turns.begin()),
                  std::move_iterator(loaded->turns.end()));
}

void DobbinChat::save() {
    if (!isLoaded_)
        load();
    if (turns_.size() > turnCap)
        turns_.erase(turns_.begin(), turns_.end() - std::ptrdiff_t(turnCap));
    // What could not be read is not written over.
    if (!isLoaded_ || around_.store.isPreview)
        return;
    const Expected<void> saved = file_.save(turns_);
    lastSaveError_ = saved ? std::nullopt : std::optional<Error>(saved.error());
}

void DobbinChat::setThinking(bool isThinking) {
    isThinking_ = isThinking;
    Q_EMIT isThinkingChanged();
}

} // namespace quillon

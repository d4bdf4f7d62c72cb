#pragma once

#include "assistant/ChatFile.h"
#include "assistant/ChatTurn.h"
#include "platform/Background.h"
#include "platform/Clock.h"
#include "platform/Settings.h"
#include "store/AppStore.h"

#include <QCoroTask>
#include <QObject>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace quillon {

class AIManager;
class DobbinJudge;

/// The conversation with Dobbin: what was asked and answered, kept in a file that is saved with
/// every turn. On the store's thread; whoever has it holds the store's lock, so that nobody else
/// writes the file. It may go away in the middle of a thought, and then that ends without a trace.
class DobbinChat final : public QObject {
    Q_OBJECT
    Q_PROPERTY(std::vector<quillon::ChatTurn> turns READ turns NOTIFY turnsChanged)
    Q_PROPERTY(bool isThinking READ isThinking NOTIFY isThinkingChanged)
    Q_PROPERTY(bool isOpen READ isOpen WRITE setOpen NOTIFY isOpenChanged)
    Q_PROPERTY(int focusRequest READ focusRequest NOTIFY focusRequestChanged)

public:
    /// All borrowed. What is under way in the background when the chat goes away uses the platform
    /// and the judge until the background ends.
    struct Surroundings {
        AppStore& store;
        const Platform& platform;
        const DobbinJudge& judge;
        Storage& storage;
        Settings& settings;
        Background& background;
        std::function<AIManager&()> assistant; ///< called when there is something to ask
    };

    /// Takes the conversation from the file.
    DobbinChat(Surroundings surroundings, std::string path, QObject* parent = nullptr);
    ~DobbinChat() override;

    /// Oldest first, 60 at most. An answer stands right after its question, whatever was asked in
    /// between; a question without one is still waiting for it, or was when Quillon ended.
    [[nodiscard]] const std::vector<ChatTurn>& turns() const { return turns_; }
    [[nodiscard]] bool isThinking() const { return isThinking_; }
    [[nodiscard]] bool isOpen() const;
    Expected<void> setOpen(bool open);
    [[nodiscard]] int focusRequest() const { return focusRequest_; }
    /// Has the panel put the cursor into the question.
    void requestFocus();

    /// Asks; questions are answered one at a time, in the order in which they come. `answered` is
    /// called with the answer, or with the turn that says why there is none, maybe within this
    /// call, and never when the chat goes away before. False for a blank question, which is not
    /// asked.
    bool ask(const QString& question, std::function<void(const ChatTurn&)> answered = {});

    /// Gives up on every question that has no answer yet; each gets a turn that says so. The model
    /// is not kept at it.
    void stop();

    /// Carries out a change that a turn offers, marks it as done and says what has happened. Fails
    /// with a sentence: `notFound` when the conversation has no such change any more, otherwise
    /// like quillon::apply. A rule to be written is marked and nothing else.
    [[nodiscard]] Expected<QString> apply(const QUuid& turnID, std::size_t action);

    /// Keeps that whoever asked has seen an answer that offers changes.
    void noteShown(const QUuid& turnID);

    /// Why the conversation could not be read or saved the last time; nothing once it could. The
    /// next turn tries again.
    [[nodiscard]] const std::optional<Error>& lastSaveError() const { return lastSaveError_; }
    /// A sentence about what was wrong with the file, once.
    [[nodiscard]] std::optional<QString> takeWarning();

Q_SIGNALS:
    void turnsChanged();
    void isThinkingChanged();
    void isOpenChanged();
    void focusRequestChanged();

private:
    struct Question {
        QUuid turnID;
        QString text;
        std::function<void(const ChatTurn&)> answered;
    };
    struct Material;

    QCoro::Task<> think();
    /// Nothing when the chat has gone or nobody waits any more.
    QCoro::Task<std::optional<ChatTurn>> answerOfModel(QUuid questionID, QString question);
    QCoro::Task<std::vector<DobbinAction>> suggestedChanges(std::shared_ptr<Material> material,
                                                            ChatTurn answer);
    void add(ChatTurn turn, const QUuid& after);
    void load();
    void save();
    void setThinking(bool isThinking);
    void dropThought();

    Surroundings around_;
    ChatFile file_;
    std::vector<ChatTurn> turns_;
    bool isLoaded_ = false; ///< otherwise the file holds what we could not read
    std::optional<QString> warning_;
    std::optional<Error> lastSaveError_;
    std::deque<Question> questions_; ///< the first is being answered
    bool isThinking_ = false;
    int focusRequest_ = 0;
    std::shared_ptr<const void> life_;          ///< those who wait look whether it is still there
    std::shared_ptr<std::stop_source> thought_; ///< gone once nobody waits for what is thought
};

} // namespace quillon

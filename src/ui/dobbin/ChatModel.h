#pragma once

#include "assistant/DobbinChat.h"
#include "assistant/backends/AIManager.h"
#include "platform/Clock.h"
#include "platform/Settings.h"
#include "store/AppStore.h"
#include "ui/KeyedRows.h"
#include "ui/Sheets.h"
#include "ui/Toasts.h"
#include "ui/dobbin/ChatRow.h"

#include <QCoroTask>
#include <QPointer>
#include <QSet>

#include <functional>
#include <optional>

namespace quillon {

/// The conversation with Dobbin as its panel shows it. The conversation itself is taken from its
/// file when the panel is first open, and no model or keyring is touched before.
class ChatModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen WRITE setOpen NOTIFY isOpenChanged)
    Q_PROPERTY(QAbstractItemModel* turns READ turns CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool isThinking READ isThinking NOTIFY changed)
    Q_PROPERTY(QString place READ place NOTIFY changed)
    Q_PROPERTY(QStringList examples READ examples NOTIFY changed)
    Q_PROPERTY(QString lastQuestion READ lastQuestion NOTIFY changed)
    Q_PROPERTY(QString notice READ notice NOTIFY changed)

public:
    /// All borrowed for the model's life.
    struct Surroundings {
        AppStore& store;
        Settings& settings;
        const Clock& clock;
        Sheets& sheets;
        Toasts& toasts;
        std::function<DobbinChat&()> chat;
        std::function<AIManager&()> assistant;
        /// Has a rule for the folder written from a sentence, to be looked at before it is saved.
        std::function<void(const QString& folderID, const QString& sentence)> writeRule;
    };

    explicit ChatModel(Surroundings around, QObject* parent = nullptr);

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    void setOpen(bool open);
    /// With the cursor in the question, where it opens.
    Q_INVOKABLE void toggle();
    /// Opens it with the cursor in the question.
    Q_INVOKABLE void focus();

    /// False for a blank question, which is not asked.
    Q_INVOKABLE bool ask(const QString& question);
    /// Gives up on every question that has no answer yet.
    Q_INVOKABLE void stop();
    /// Asks the question again that came to this error.
    Q_INVOKABLE void askAgain(const QString& turnKey);
    /// Carries out a change that a turn offers.
    Q_INVOKABLE void carryOut(const QString& turnKey, int change);

    [[nodiscard]] QAbstractItemModel* turns() { return &rows_; }
    [[nodiscard]] bool isEmpty() const { return rows_.rows().empty(); }
    [[nodiscard]] bool isThinking() const { return chat_ && chat_->isThinking(); }
    /// Where he thinks.
    [[nodiscard]] QString place() const { return place_; }
    /// Questions to begin with: four for somebody who has never asked, two for the first of a day.
    [[nodiscard]] QStringList examples() const;
    [[nodiscard]] QString lastQuestion() const;
    /// What is wrong with the conversation's file, in a sentence.
    [[nodiscard]] QString notice() const { return notice_; }

Q_SIGNALS:
    void isOpenChanged();
    void changed();
    void focusRequested();
    /// An answer that has just come, to be said aloud.
    void answered(const QString& spoken);

private:
    /// A rule that was to be written from an offered change.
    struct Writing {
        QUuid turnID;
        std::size_t change;
        QUuid folderID;
        QSet<QUuid> rulesBefore;
    };

    DobbinChat& chat();
    void takeTurns();
    void refresh();
    void refreshNotice();
    QCoro::Task<> refreshPlace();
    void sheetChanged();
    [[nodiscard]] QSet<QUuid> rulesOf(const QUuid& folderID) const;
    void tell(const Expected<QString>& outcome);

    Surroundings around_;
    bool isOpen_ = false;
    QPointer<DobbinChat> chat_;
    KeyedRows<ChatRow> rows_;
    QString place_;
    QString warning_;
    QString notice_;
    std::optional<Writing> writing_;
};

} // namespace quillon

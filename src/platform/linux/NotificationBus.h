#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QDBusConnection;
class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

namespace quillon {

/// The conversation with the desktop's notification service. Lives on a thread of its own, which it
/// may block.
class NotificationBus : public QObject {
    Q_OBJECT

public:
    struct Request {
        std::uint64_t token = 0;
        QString title;
        QString body;
        bool offersUndo = false;
        bool canBeClicked = false;
    };
    enum class End { ignored, undo, clicked };
    /// Nothing more will come of the token. `activation` is the desktop's own token that lets a
    /// window come to the front, or empty.
    using Ended = std::function<void(std::uint64_t token, End end, const QString& activation)>;

    /// `address` is that of the message bus; `ended` is called on this object's thread.
    NotificationBus(QString address, Ended ended);
    ~NotificationBus() override;

    void show(const Request& request);

private Q_SLOTS:
    void actionInvoked(uint id, const QString& action);
    void notificationClosed(uint id, uint reason);
    void activationTokenCame(uint id, const QString& activation);

private:
    struct Abilities {
        bool actions = false;
        bool markup = false;
    };

    [[nodiscard]] bool connectToBus();
    void disconnectFromBus();
    void askForAbilities();
    void abilitiesArrived(QDBusPendingCallWatcher& call);
    void send(const Request& request);
    void sent(std::uint64_t token, bool isAnswered, QDBusPendingCallWatcher& call);
    void serviceGone();
    void dropWaiting();
    void end(uint id, End end);

    QString address_;
    Ended ended_;
    QString connectionName_;
    std::unique_ptr<QDBusConnection> connection_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    bool isAsking_ = false;
    std::optional<Abilities> abilities_; ///< of the service that runs now
    QList<Request> waiting_;             ///< for the abilities
    QHash<uint, std::uint64_t> tokens_;  ///< of what is shown with actions, by the service's id
    QString activation_;                 ///< for the action that comes next
};

} // namespace quillon

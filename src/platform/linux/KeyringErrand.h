#pragma once

#include "platform/linux/KeyringLook.h"
#include "platform/linux/SecretServiceKeychain.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace QKeychain {
class Job;
}

namespace quillon {

class Mailbox;

/// One thing to be done with the keyring, from the question whether there is one to the reason why
/// it failed. On the event loop's thread; goes by itself when it has answered.
class KeyringErrand final : public QObject {
public:
    enum class Deed { read, save, remove };
    struct Task {
        Deed deed;
        QString service;
        QString account;
        QString value = {}; ///< to save
    };
    /// With what was read, or nothing.
    using Done = std::function<void(Expected<QString>)>;

    KeyringErrand(Task task, QString busAddress, KeyringPatience patience, Done done,
                  QObject* parent);
    ~KeyringErrand() override;

    void start();

private:
    using Looked = void (KeyringErrand::*)(const Expected<KeyringLook>&);

    void look(Looked next);
    void begin(const Expected<KeyringLook>& look);
    void carriedOut(QKeychain::Job& job);
    void explain(const Expected<KeyringLook>& look);
    void finish(Expected<QString> result);

    Task task_;
    QString busAddress_;
    KeyringPatience patience_;
    Done done_;
    std::shared_ptr<Mailbox> mailbox_;
    std::shared_ptr<void> bus_; ///< held open
    QTimer timer_;
    QKeychain::Job* job_ = nullptr; ///< goes by itself as well
    Expected<QString> outcome_;     ///< of the job, before it is explained
};

} // namespace quillon

#include "platform/linux/SecretServiceKeychain.h"

#include "platform/linux/KeyringErrand.h"
#include "platform/linux/SessionBus.h"

namespace quillon {

struct SecretServiceKeychain::State {
    QString service;
    Environment environment;
    KeyringPatience patience;
    QObject errands = QObject(nullptr); ///< what is under way ends with it

    void run(KeyringErrand::Task task, KeyringErrand::Done done) {
        task.service = service;
        (new KeyringErrand(std::move(task), sessionBusAddress(environment), patience,
                           std::move(done), &errands))
            ->start();
    }
};

namespace {

/// For those who wait for no value.
KeyringErrand::Done withoutValue(std::function<void(Expected<void>)> done) {
    return [done = std::move(done)](const Expected<QString>& result) {
        if (result)
            done({});
        else
            done(std::unexpected(result.error()));
    };
}

} // namespace

SecretServiceKeychain::SecretServiceKeychain(QString service, const Environment& environment,
                                             KeyringPatience patience)
    : state_(std::make_unique<State>(std::move(service), environment, patience)) {}

SecretServiceKeychain::~SecretServiceKeychain() = default;

void SecretServiceKeychain::read(const QString& account,
                                 std::function<void(Expected<QString>)> done) {
    state_->run({.deed = KeyringErrand::Deed::read, .service = {}, .account = account},
                std::move(done));
}

void SecretServiceKeychain::save(const QString& value, const QString& account,
                                 std::function<void(Expected<void>)> done) {
    state_->run(
        {.deed = KeyringErrand::Deed::save, .service = {}, .account = account, .value = value},
        withoutValue(std::move(done)));
}

void SecretServiceKeychain::remove(const QString& account,
                                   std::function<void(Expected<void>)> done) {
    state_->run({.deed = KeyringErrand::Deed::remove, .service = {}, .account = account},
                withoutValue(std::move(done)));
}

} // namespace quillon

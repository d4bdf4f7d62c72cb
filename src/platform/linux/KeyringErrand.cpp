#include "platform/linux/KeyringErrand.h"

#include "platform/linux/Mailbox.h"
#include "platform/linux/SecretLibrary.h"

#include <qt6keychain/keychain.h>

#include <thread>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QKeychain::Job* jobFor(const KeyringErrand::Task& task) {
    switch (task.deed) {
    case KeyringErrand::Deed::read:
        return new QKeychain::ReadPasswordJob(task.service);
    case KeyringErrand::Deed::save: {
        auto* const job = new QKeychain::WritePasswordJob(task.service);
        job->setTextData(task.value);
        return job;
    }
    case KeyringErrand::Deed::remove:
        return new QKeychain::DeletePasswordJob(task.service);
    }
    return nullptr;
}

std::unexpected<Error> lockedKeyring() {
    return failure(ErrorKind::locked, u"The keyring is locked; unlock it, and try again"_s);
}

std::unexpected<Error> notKept(const QString& account) {
    return failure(ErrorKind::notFound, u"The keyring holds no %1"_s.arg(account));
}

} // namespace

KeyringErrand::KeyringErrand(Task task, QString busAddress, KeyringPatience patience, Done done,
                             QObject* parent)
    : QObject(parent)
    , task_(std::move(task))
    , busAddress_(std::move(busAddress))
    , patience_(patience)
    , done_(std::move(done))
    , mailbox_(std::make_shared<Mailbox>(this)) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { finish(std::unexpected(silentKeyring())); });
}

KeyringErrand::~KeyringErrand() {
    mailbox_->close();
}

void KeyringErrand::start() {
    if (busAddress_.isEmpty())
        mailbox_->post([this] { finish(std::unexpected(noKeyring())); });
    else
        look(&KeyringErrand::begin);
}

/// On a thread of its own, for connecting waits for the bus; one that never answers is left behind.
void KeyringErrand::look(Looked next) {
    timer_.start(patience_.forLook);
    std::thread([this, next, box = mailbox_, address = busAddress_, service = task_.service,
                 account = task_.account] {
        const auto found = lookAtKeyring(address, service, account);
        const auto bus = found ? holdSessionBus() : nullptr;
        box->post([this, next, found, bus] {
            bus_ = bus;
            (this->*next)(found);
        });
    }).detach();
}

void KeyringErrand::begin(const Expected<KeyringLook>& look) {
    if (!done_)
        return;
    if (!look)
        return finish(std::unexpected(look.error()));
    if (task_.deed != Deed::save && !look->holdsIt && !look->isLocked)
        return finish(notKept(task_.account));
    if (!loadSecretLibrary())
        return finish(failure(ErrorKind::unsupported,
                              u"The library for the keyring is missing; install libsecret-1-0"_s));
    // It can't be called off, and so goes on by itself when nobody waits for it any more.
    job_ = jobFor(task_);
    job_->setKey(task_.account);
    job_->setInsecureFallback(false);
    connect(job_, &QKeychain::Job::finished, [bus = bus_] { forgetSecretService(); });
    connect(job_, &QKeychain::Job::finished, this, [this] { carriedOut(*job_); });
    timer_.start(patience_.forDeed);
    job_->start();
}

void KeyringErrand::carriedOut(QKeychain::Job& job) {
    if (!done_)
        return;
    switch (job.error()) {
    case QKeychain::NoError:
        if (const auto* const reading = qobject_cast<QKeychain::ReadPasswordJob*>(&job))
            return finish(reading->textData());
        if (task_.deed == Deed::save)
            return finish(QString());
        outcome_ = QString();
        break;
    case QKeychain::EntryNotFound:
        outcome_ = notKept(task_.account);
        break;
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        outcome_ = std::unexpected(refusingKeyring());
        break;
    case QKeychain::NoBackendAvailable:
        return finish(std::unexpected(noKeyring()));
    default:
        outcome_ = failure(ErrorKind::io, u"The keyring failed: %1"_s.arg(job.errorString()));
    }
    look(&KeyringErrand::explain);
}

/// A locked keyring says of anything that it isn't there, or that it has been done.
void KeyringErrand::explain(const Expected<KeyringLook>& look) {
    if (!done_)
        return;
    if (!look)
        return finish(std::unexpected(look.error()));
    if (look->isItLocked || (!outcome_ && look->isLocked))
        return finish(lockedKeyring());
    if (task_.deed == Deed::save && !look->hasDefault)
        return finish(failure(ErrorKind::unsupported,
                              u"The keyring has no place for a key yet; create a keyring in the "
                              "desktop's password program, and try again"_s));
    if (outcome_ && look->holdsIt)
        return finish(std::unexpected(refusingKeyring()));
    finish(std::move(outcome_));
}

void KeyringErrand::finish(Expected<QString> result) {
    timer_.stop();
    deleteLater();
    std::exchange(done_, {})(std::move(result));
}

} // namespace quillon

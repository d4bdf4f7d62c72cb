#pragma once

#include "platform/Error.h"

#include <QString>

#include <functional>

namespace quillon {

/// Secrets of the user's, kept by the desktop's keyring under an account's name and nowhere else.
/// On the event loop's thread, where the answer comes too: later, once, or never when the keychain
/// has gone by then. Every answer comes within a minute and a half.
///
/// Each fails with `unsupported` where there is no keyring, with `locked` where it can't be opened
/// without the user, with `permissionDenied` where the user or the keyring refuses, with `timedOut`
/// where it gives no answer, and with `io` otherwise. Every message says what to do, and none holds
/// a secret.
class Keychain {
public:
    virtual ~Keychain() = default;

    /// Fails with `notFound` as well, when nothing is kept for the account.
    virtual void read(const QString& account, std::function<void(Expected<QString>)> done) = 0;

    /// Instead of what was kept before, if anything.
    virtual void save(const QString& value, const QString& account,
                      std::function<void(Expected<void>)> done) = 0;

    /// Fails with `notFound` as well, when nothing is kept for the account.
    virtual void remove(const QString& account, std::function<void(Expected<void>)> done) = 0;
};

} // namespace quillon

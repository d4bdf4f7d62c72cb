#pragma once

#include "platform/Error.h"

#include <QString>

namespace quillon {

/// What the session's keyring says without opening anything.
struct KeyringLook {
    bool hasDefault = false; ///< there is a collection that new secrets go into
    bool isLocked = false;   ///< that collection
    bool holdsIt = false;    ///< the secret that was asked about, locked or not
    bool isItLocked = false; ///< that secret
};

/// Asks the Secret Service on the message bus at `busAddress` about the secret that an account has
/// with a server. May wait for as long as the bus pleases, and starts the service where the bus
/// knows how. Fails with `unsupported` where there is no such service, with `permissionDenied`
/// where the bus or the service refuses, with `timedOut` where it doesn't answer, else with `io`.
[[nodiscard]] Expected<KeyringLook> lookAtKeyring(const QString& busAddress, const QString& server,
                                                  const QString& account);

/// Why nothing can be done where there is no keyring at all.
[[nodiscard]] Error noKeyring();
/// It gives no answer.
[[nodiscard]] Error silentKeyring();
/// The user or the keyring refuses.
[[nodiscard]] Error refusingKeyring();

} // namespace quillon

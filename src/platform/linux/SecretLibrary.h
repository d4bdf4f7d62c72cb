#pragma once

#include <memory>

namespace quillon {

// What QtKeychain leaves undone of the libraries that it stands on. They are loaded when they are
// first needed.

/// Whether the library is there that QtKeychain talks to the Secret Service with; without it, it
/// would look for keyrings elsewhere.
[[nodiscard]] bool loadSecretLibrary();

/// Makes that library forget the service that it knows, which may have been started anew since: to
/// be called after each use.
void forgetSecretService();

/// GLib's own connection to the session's message bus, for as long as this is held by anybody. It
/// would end this process when the bus goes away, and is told not to. Waits for the bus; null when
/// there is none. Any thread.
[[nodiscard]] std::shared_ptr<void> holdSessionBus();

} // namespace quillon

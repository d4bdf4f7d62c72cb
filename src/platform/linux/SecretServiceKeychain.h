#pragma once

#include "platform/Keychain.h"
#include "platform/linux/LinuxUserFolders.h"

#include <chrono>
#include <memory>

namespace quillon {

/// How long to wait for a keyring.
struct KeyringPatience {
    std::chrono::milliseconds forLook{12'000}; ///< to say whether it is there, and in what state
    std::chrono::milliseconds forDeed{60'000}; ///< a person may be asked for a password
};

/// Secrets in the Secret Service of the desktop's session. Nothing is loaded, connected or started
/// before the first call.
class SecretServiceKeychain final : public Keychain {
public:
    /// `service` names the program to the keyring.
    explicit SecretServiceKeychain(QString service,
                                   const Environment& environment = processEnvironment,
                                   KeyringPatience patience = {});
    ~SecretServiceKeychain() override;
    SecretServiceKeychain(const SecretServiceKeychain&) = delete;
    SecretServiceKeychain& operator=(const SecretServiceKeychain&) = delete;

    void read(const QString& account, std::function<void(Expected<QString>)> done) override;
    void save(const QString& value, const QString& account,
              std::function<void(Expected<void>)> done) override;
    void remove(const QString& account, std::function<void(Expected<void>)> done) override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon

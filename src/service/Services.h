#pragma once

#include "engine/EngineSettings.h"
#include "engine/RuleEngine.h"
#include "platform/Platform.h"
#include "store/StoreSession.h"

#include <memory>

namespace quillon {

/// Builds the platform, the assistant's judge, the engine and the store for one process, and hands
/// them out by reference. Cheap to make: what costs anything is built when it is first used.
class Services {
public:
    explicit Services(const UserFolders& folders);
    ~Services();

    [[nodiscard]] const Platform& platform() const;
    [[nodiscard]] Storage& storage();
    [[nodiscard]] RuleEngine engine(EngineSettings settings);

    /// The store for changing; see StoreSession::open.
    [[nodiscard]] Expected<std::unique_ptr<StoreSession>> openStore();
    /// The store for reading; see quillon::viewStore.
    [[nodiscard]] Expected<StoreView> viewStore();

private:
    struct Machine;

    [[nodiscard]] StoreSession::Services storeServices();

    std::unique_ptr<Machine> machine_;
};

} // namespace quillon

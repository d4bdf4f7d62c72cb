#pragma once

#include "assistant/backends/OnDeviceStatus.h"
#include "engine/EngineSettings.h"
#include "engine/RuleEngine.h"
#include "platform/Background.h"
#include "platform/Platform.h"
#include "platform/Timers.h"
#include "service/ObservedSettings.h"
#include "service/StoreAccess.h"
#include "service/StoreSnapshot.h"
#include "store/StoreSession.h"

#include <functional>
#include <memory>

namespace quillon {

class AIManager;
class DobbinChat;
class DobbinJudge;
class FolderSuggestions;
class SuggestionMemory;

/// Builds the platform, the assistant's judge, the engine and the store for one process, and hands
/// them out by reference. Cheap to make: what costs anything is built when it is first used. Made
/// and destroyed on the thread of the event loop, to be used from any.
class Services {
public:
    /// `where` is where failures are read.
    explicit Services(const UserFolders& folders, SaidIn where = SaidIn::terminal);
    ~Services();

    [[nodiscard]] const Platform& platform() const;
    [[nodiscard]] Storage& storage();
    [[nodiscard]] ObservedSettings& settings();
    [[nodiscard]] RuleEngine engine(EngineSettings settings);
    [[nodiscard]] const DobbinJudge& judge() const;
    [[nodiscard]] SuggestionMemory& suggestionMemory();

    /// The store for changing, opened on the event loop's thread when it is first asked for; see
    /// StoreSession::open for how it fails. From a thread other than that.
    [[nodiscard]] Expected<StoreAccess> openStore();

    /// The store for reading: from the open store, or else from its files without waiting for
    /// anybody; see quillon::viewStore. From a thread other than the event loop's.
    [[nodiscard]] Expected<StoreSnapshot> viewStore();

    /// Whether the store that is open here is that of the instance. From any thread.
    [[nodiscard]] bool isInstance() const;

    // On the event loop's thread.

    /// The assistant's settings, key and models; made when it is first asked for, and there until
    /// these services go.
    [[nodiscard]] AIManager& assistant();

    /// Threads and timers of the event loop, which are there until the store is let go. The store
    /// must be open.
    [[nodiscard]] Background& background();
    [[nodiscard]] Timers& timers();

    /// The conversation with the assistant; made when it is first asked for, and there until the
    /// store is let go. The store must be open.
    [[nodiscard]] DobbinChat& chat();

    /// Rules to be offered for a folder; made when it is first asked for, and there until the store
    /// is let go. The store must be open.
    [[nodiscard]] FolderSuggestions& suggestions();

    /// Opens the store as the one instance that lives on; fails with `timedOut` when there is one
    /// already.
    [[nodiscard]] Expected<AppStore*> startInstance();

    /// What clicking a notification does, which does nothing otherwise. With the desktop's token
    /// that lets a window come to the front, or empty. The store must be open.
    void onNotificationClicked(std::function<void(const std::string& token)> clicked);

    /// Lets what is under way in the store end, saves, and calls `done`; at once when the store was
    /// never opened.
    void finish(std::function<void()> done);
    /// What is under way in the store ends after the file that it is at.
    void hurry();
    /// Lets the store go. Its thread waits for work that has not ended.
    void close();

    /// To be called when this process is asked to end. Unless somebody handles it, the store
    /// hurries.
    void stopRequested();
    /// The handler is called at once for a request that has come already.
    void setStopHandler(std::function<void()> handler);

    /// Runs `work` on the event loop's thread and waits for it. From any thread.
    void onLoop(const std::function<void()>& work) const;

private:
    struct Machine;
    struct OpenStore;
    struct Assistant;

    [[nodiscard]] StoreSession::Services storeServices();
    [[nodiscard]] Expected<void> open(AppStore::Life life);

    std::unique_ptr<Machine> machine_;
    std::unique_ptr<Assistant> assistant_; ///< on the event loop's thread alone
    std::unique_ptr<OpenStore> store_;     ///< on the event loop's thread alone
    std::function<void()> stopHandler_;
    bool isStopRequested_ = false; ///< and nobody has handled it
};

} // namespace quillon

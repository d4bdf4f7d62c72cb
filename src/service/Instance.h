#pragma once

#include "service/CommandServer.h"
#include "service/Services.h"

namespace quillon {

/// This process as the one instance of Quillon: it holds the store and carries out what commands of
/// other processes ask for. On the event loop's thread.
class Instance {
public:
    /// Fails with `timedOut` when another process holds the store, otherwise when the store can't
    /// be used or no commands can be taken; always with a sentence.
    [[nodiscard]] static Expected<std::unique_ptr<Instance>> start(Services& services,
                                                                   CommandRunner run);
    /// The store stays open in the services.
    ~Instance() = default;
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    [[nodiscard]] AppStore& store() { return store_; }
    /// Tells of each command that comes in.
    [[nodiscard]] CommandServer& server() { return *server_; }

    [[nodiscard]] bool isStopping() const { return isStopping_; }
    /// Takes no more commands, lets what is under way end, saves, and calls `stopped`. Asked once
    /// more, what is under way ends after the file that it is at; then `stopped` of the first time
    /// is called.
    void stop(std::function<void()> stopped);

private:
    Instance(Services& services, AppStore& store, std::unique_ptr<CommandServer> server);

    void finishSoon();

    Services& services_;
    AppStore& store_;
    std::unique_ptr<CommandServer> server_;
    std::function<void()> stopped_;
    bool isStopping_ = false;
    bool isEnding_ = false;
    QObject context_; ///< what is posted here is dropped with it
};

} // namespace quillon

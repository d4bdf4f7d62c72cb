#pragma once

#include "platform/linux/LocalListener.h"
#include "service/CommandConnection.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <list>
#include <memory>
#include <thread>

namespace quillon {

/// Carries out the commands that come in through the control socket, each on a thread of its own.
/// On the event loop's thread, which tells those who wait every second that it is well; nothing
/// that another process does or leaves undone keeps it waiting.
class CommandServer final : public QObject {
    Q_OBJECT

public:
    struct Options {
        std::string path;
        Greeting greeting;
        unsigned user = thisUser(); ///< whose processes may call
    };

    /// For whoever holds the store: takes the place of a socket that nobody listens at any more.
    [[nodiscard]] static Expected<std::unique_ptr<CommandServer>> start(const Options& options,
                                                                        CommandRunner run);
    /// No command may be under way any more; see endCommands().
    ~CommandServer() override;

    /// Nobody gets through from now on.
    void stopListening();

    /// Makes the commands under way end early and calls `done` when they have. A second call
    /// replaces `done`.
    void endCommands(std::function<void()> done);

Q_SIGNALS:
    void received(const std::vector<std::string>& arguments);

private:
    struct Session {
        explicit Session(LocalSocket socket) : connection(std::move(socket)) {}
        CommandConnection connection;
        std::thread thread;
    };

    CommandServer(const Options& options, CommandRunner run, LocalListener listener);

    void takeCalls();
    void resume();
    void take(LocalSocket socket);
    void drop(const Session* session);

    Options options_;
    CommandRunner run_;
    std::optional<LocalListener> listener_;
    QSocketNotifier calls_;
    QTimer pause_; ///< of taking calls
    QTimer beat_;
    QTimer grace_;
    std::list<Session> sessions_;
    bool isEnding_ = false;
    std::function<void()> done_;
};

} // namespace quillon

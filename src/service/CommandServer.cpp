#include "service/CommandServer.h"

namespace quillon {
namespace {

/// More callers wait in the system's queue until one of these has ended.
constexpr std::size_t mostSessions = 32;
constexpr std::chrono::seconds beatPeriod{1};
/// Before a caller who couldn't be taken is tried again.
constexpr std::chrono::seconds callPause{1};
/// How long a command that is to end may take to say so before its connection is cut.
constexpr std::chrono::seconds endGrace{2};

} // namespace

Expected<std::unique_ptr<CommandServer>> CommandServer::start(const Options& options,
                                                              CommandRunner run) {
    auto listener = LocalListener::listen(options.path);
    if (!listener)
        return std::unexpected(listener.error());
    return std::unique_ptr<CommandServer>(
        new CommandServer(options, std::move(run), std::move(*listener)));
}

CommandServer::CommandServer(const Options& options, CommandRunner run, LocalListener listener)
    : options_(options)
    , run_(std::move(run))
    , listener_(std::move(listener))
    , calls_(listener_->descriptor(), QSocketNotifier::Read) {
    connect(&calls_, &QSocketNotifier::activated, this, &CommandServer::takeCalls);
    pause_.setInterval(callPause);
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, &CommandServer::resume);
    beat_.setInterval(beatPeriod);
    connect(&beat_, &QTimer::timeout, this, [this] {
        for (Session& session : sessions_)
            session.connection.sayAlive();
    });
    grace_.setInterval(endGrace);
    grace_.setSingleShot(true);
    connect(&grace_, &QTimer::timeout, this, [this] {
        for (Session& session : sessions_)
            session.connection.hangUp();
    });
}

CommandServer::~CommandServer() {
    for (Session& session : sessions_) {
        session.connection.hangUp();
        session.thread.join();
    }
}

void CommandServer::stopListening() {
    calls_.setEnabled(false);
    listener_.reset();
}

void CommandServer::endCommands(std::function<void()> done) {
    if (sessions_.empty())
        return done();
    isEnding_ = true;
    done_ = std::move(done);
    for (Session& session : sessions_)
        session.connection.cancel();
    grace_.start();
}

void CommandServer::takeCalls() {
    while (sessions_.size() < mostSessions) {
        auto socket = listener_->accept();
        if (!socket) {
            pause_.start();
            break;
        }
        if (!*socket)
            return;
        take(std::move(**socket));
    }
    calls_.setEnabled(false);
}

void CommandServer::resume() {
    if (listener_)
        calls_.setEnabled(true);
}

void CommandServer::take(LocalSocket socket) {
    const auto user = socket.peerUser();
    if (!user || *user != options_.user)
        return;
    if (!socket.sendNow(encodeFrame(FrameType::greeting, packGreeting(options_.greeting))))
        return;
    Session& session = sessions_.emplace_back(std::move(socket));
    session.thread = std::thread([this, &session] {
        session.connection.serve(run_, [this](const std::vector<std::string>& arguments) {
            QMetaObject::invokeMethod(
                this, [this, arguments] { Q_EMIT received(arguments); }, Qt::QueuedConnection);
        });
        QMetaObject::invokeMethod(
            this, [this, ended = &session] { drop(ended); }, Qt::QueuedConnection);
    });
    if (!beat_.isActive())
        beat_.start();
}

void CommandServer::drop(const Session* session) {
    const auto found = std::ranges::find(sessions_, session, [](Session& s) { return &s; });
    found->thread.join();
    sessions_.erase(found);
    resume();
    if (!sessions_.empty())
        return;
    beat_.stop();
    grace_.stop();
    if (isEnding_ && done_)
        std::exchange(done_, {})();
}

} // namespace quillon

#include "service/Agent.h"

#include "service/AgentLog.h"
#include "service/CommandClient.h"
#include "service/CommandServer.h"
#include "service/ThisProcess.h"
#include "store/Sentences.h"

#include <future>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// On the event loop's thread.
class Agent {
public:
    Agent(const Console& console, Services& services)
        : console_(console), services_(services), log_(console.err, services.platform().clock) {}

    ~Agent() {
        if (server_)
            services_.setStopHandler({});
    }
    Agent(const Agent&) = delete;
    Agent& operator=(const Agent&) = delete;

    /// Whether it could; says why not.
    ExitCode start(const CommandRunner& run) {
        const auto store = services_.startInstance();
        if (!store) {
            console_.say(store.error());
            return store.error().kind == ErrorKind::timedOut ? ExitCode::unreachable
                                                             : ExitCode::unreadable;
        }
        store_ = *store;
        const UserFolders& folders = services_.platform().folders;
        auto server = CommandServer::start(
            {.path = controlSocketPath(folders), .greeting = {.dataFolder = folders.data}}, run);
        if (!server) {
            console_.say(u"Commands can't be taken at %1: %2"_s.arg(
                pathText(controlSocketPath(folders)), server.error().message));
            return ExitCode::unreadable;
        }
        server_ = std::move(*server);
        follow();
        services_.setStopHandler([this] { stop(); });
        return ExitCode::done;
    }

    std::future<ExitCode> end() { return ended_.get_future(); }

private:
    void follow() {
        log_.add(u"started, %1, version %2"_s.arg(counted(store_->folders().size(), u"folder"_s),
                                                  QStringLiteral(QUILLON_VERSION)));
        for (const QString& warning : store_->openingWarnings())
            log_.add(warning);
        log_.addWatchWarnings(store_->watchWarnings());
        log_.addSaveError(store_->lastSaveError());
        QObject::connect(store_, &AppStore::runFinished, &context_,
                         [this](const RunReport& report) { log_.addRun(report); });
        QObject::connect(store_, &AppStore::questionsResolved, &context_,
                         [this](const QuestionsOutcome& outcome) { log_.addAnswers(outcome); });
        QObject::connect(store_, &AppStore::watchWarningsChanged, &context_,
                         [this] { log_.addWatchWarnings(store_->watchWarnings()); });
        QObject::connect(store_, &AppStore::lastSaveErrorChanged, &context_,
                         [this] { log_.addSaveError(store_->lastSaveError()); });
        QObject::connect(store_, &AppStore::isPausedChanged, &context_,
                         [this] { log_.add(store_->isPaused() ? u"paused"_s : u"resumed"_s); });
        QObject::connect(server_.get(), &CommandServer::received, &context_,
                         [this](const std::vector<std::string>& arguments) {
                             QStringList words;
                             for (const std::string& argument : arguments)
                                 words.append(pathText(argument));
                             log_.add(u"command: "_s + words.join(u' '));
                         });
    }

    void stop() {
        if (isStopping_) {
            log_.add(u"stopping now"_s);
            services_.hurry();
            server_->endCommands([this] { finishSoon(); });
            return;
        }
        isStopping_ = true;
        log_.add(u"stopping"_s);
        server_->stopListening();
        services_.finish([this] { server_->endCommands([this] { finishSoon(); }); });
    }

    /// Commands may have changed the store while they ended.
    void finishSoon() {
        if (std::exchange(isEnding_, true))
            return;
        const auto finish = [this] {
            services_.finish([this] {
                log_.add(u"stopped"_s);
                ended_.set_value(store_->lastSaveError() ? ExitCode::someFailed : ExitCode::done);
            });
        };
        // We may be within an earlier finish().
        QMetaObject::invokeMethod(&context_, finish, Qt::QueuedConnection);
    }

    const Console& console_;
    Services& services_;
    AgentLog log_;
    AppStore* store_ = nullptr;
    std::unique_ptr<CommandServer> server_;
    QObject context_; ///< what is heard of the store and the server ends with it
    bool isStopping_ = false;
    bool isEnding_ = false;
    std::promise<ExitCode> ended_;
};

} // namespace

ExitCode runAgent(const Console& console, Services& services, const CommandRunner& run) {
    std::unique_ptr<Agent> agent;
    ExitCode code = ExitCode::done;
    becomeLongLived();
    services.onLoop([&] {
        agent = std::make_unique<Agent>(console, services);
        code = agent->start(run);
    });
    if (code == ExitCode::done)
        code = agent->end().get();
    services.onLoop([&] { agent.reset(); });
    return code;
}

} // namespace quillon

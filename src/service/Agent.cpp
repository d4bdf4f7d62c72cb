#include "service/Agent.h"

#include "service/AgentLog.h"
#include "service/CommandClient.h"
#include "service/Instance.h"
#include "service/InstanceRequest.h"
#include "service/InstanceTurn.h"
#include "service/ThisProcess.h"
#include "store/Sentences.h"

#include <future>
#include <thread>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Between two tries to open a store that a command is at work on.
constexpr std::chrono::seconds betweenTries{1};

/// How a stretch as the instance ended.
struct End {
    ExitCode code = ExitCode::done;
    std::optional<int> successor = {}; ///< the process that the place was given to
};

/// One stretch as the instance. On the event loop's thread.
class Agent {
public:
    Agent(const Console& console, Services& services)
        : services_(services), log_(console.err, services.platform().clock) {}

    ~Agent() {
        if (instance_)
            services_.setStopHandler({});
    }
    Agent(const Agent&) = delete;
    Agent& operator=(const Agent&) = delete;

    [[nodiscard]] Expected<void> start(const CommandRunner& run) {
        auto instance = Instance::start(
            services_, [this, run](const std::vector<std::string>& words, const Console& caller) {
                const auto request = instanceRequest(words);
                return request && request->kind == InstanceRequest::Kind::handOver
                           ? handOver(request->argument)
                           : run(words, caller);
            });
        if (!instance)
            return std::unexpected(instance.error());
        instance_ = std::move(*instance);
        follow();
        services_.setStopHandler([this] {
            successor_.reset();
            stop();
        });
        return {};
    }

    std::future<End> end() { return ended_.get_future(); }

private:
    void follow() {
        AppStore* const store = &instance_->store();
        log_.add(u"started, %1, version %2"_s.arg(counted(store->folders().size(), u"folder"_s),
                                                  QStringLiteral(QUILLON_VERSION)));
        for (const QString& warning : store->openingWarnings())
            log_.add(warning);
        log_.addWatchWarnings(store->watchWarnings());
        log_.addSaveError(store->lastSaveError());
        QObject::connect(store, &AppStore::runFinished, &context_,
                         [this](const RunReport& report) { log_.addRun(report); });
        QObject::connect(store, &AppStore::questionsResolved, &context_,
                         [this](const QuestionsOutcome& outcome) { log_.addAnswers(outcome); });
        QObject::connect(store, &AppStore::watchWarningsChanged, &context_,
                         [this, store] { log_.addWatchWarnings(store->watchWarnings()); });
        QObject::connect(store, &AppStore::lastSaveErrorChanged, &context_,
                         [this, store] { log_.addSaveError(store->lastSaveError()); });
        QObject::connect(store, &AppStore::isPausedChanged, &context_, [this, store] {
            log_.add(store->isPaused() ? u"paused"_s : u"resumed"_s);
        });
        QObject::connect(&instance_->server(), &CommandServer::received, &context_,
                         [this](const std::vector<std::string>& arguments) {
                             QStringList words;
                             for (const std::string& argument : arguments)
                                 words.append(pathText(argument));
                             log_.add(u"command: "_s + words.join(u' '));
                         });
    }

    /// On a command's thread.
    ExitCode handOver(const std::string& process) {
        const int successor = QByteArray::fromStdString(process).toInt();
        if (successor <= 0)
            return ExitCode::usage;
        services_.onLoop([&] {
            if (instance_->isStopping())
                return;
            successor_ = successor;
            log_.add(u"handing over to the application"_s);
            stop();
        });
        return ExitCode::done;
    }

    void stop() {
        log_.add(instance_->isStopping() ? u"stopping now"_s : u"stopping"_s);
        instance_->stop([this] {
            log_.add(u"stopped"_s);
            const bool isSaved = !instance_->store().lastSaveError();
            ended_.set_value(
                {.code = isSaved ? ExitCode::done : ExitCode::someFailed, .successor = successor_});
        });
    }

    Services& services_;
    AgentLog log_;
    std::unique_ptr<Instance> instance_;
    QObject context_; ///< what is heard of the store and the server ends with it
    std::optional<int> successor_;
    std::promise<End> ended_;
};

Expected<End> liveAsInstance(const Console& console, Services& services, const CommandRunner& run) {
    std::unique_ptr<Agent> agent;
    Expected<void> started;
    services.onLoop([&] {
        agent = std::make_unique<Agent>(console, services);
        started = agent->start(run);
    });
    Expected<End> end;
    if (started)
        end = agent->end().get();
    else
        end = std::unexpected(started.error());
    services.onLoop([&] { agent.reset(); });
    return end;
}

} // namespace

ExitCode runAgent(const Console& console, Services& services, const CommandRunner& run,
                  bool waits) {
    becomeLongLived();
    if (services.isInstance() || (!waits && instanceProcess(services.platform().folders))) {
        console.say(u"Quillon is running already"_s);
        return ExitCode::unreachable;
    }
    std::optional<int> before;
    for (;;) {
        if (waits && !waitForTurn(services, std::exchange(before, std::nullopt)))
            return ExitCode::done;
        const auto end = liveAsInstance(console, services, run);
        if (end && !end->successor)
            return end->code;
        if (end) {
            waits = true;
            before = end->successor;
            services.onLoop([&] { services.close(); });
        } else if (!waits || end.error().kind != ErrorKind::timedOut) {
            console.say(end.error());
            return end.error().kind == ErrorKind::timedOut ? ExitCode::unreachable
                                                           : ExitCode::unreadable;
        } else {
            std::this_thread::sleep_for(betweenTries);
        }
    }
}

} // namespace quillon

#pragma once

#include "service/CommandClient.h"
#include "service/CommandServer.h"
#include "support/EventLoopApplication.h"
#include "support/ScratchFolder.h"

#include <QEventLoop>
#include <gtest/gtest.h>

#include <future>
#include <sstream>
#include <thread>

namespace quillon::testing {

/// A server on the test's own thread, which runs an event loop, and clients on others.
class InstanceBench {
public:
    struct Result {
        std::optional<ExitCode> code;
        std::string out;
        std::string err;
    };

    ScratchFolder scratch;
    UserFolders folders{.home = scratch.root(),
                        .data = scratch.path("data"),
                        .runtime = scratch.root(),
                        .config = scratch.path("config")};
    std::unique_ptr<CommandServer> server;

    ~InstanceBench() { stop(); }

    Expected<void> start(CommandRunner run, unsigned user = thisUser()) {
        auto started = CommandServer::start({.path = controlSocketPath(folders),
                                             .greeting = {.dataFolder = folders.data},
                                             .user = user},
                                            std::move(run));
        if (!started)
            return std::unexpected(started.error());
        server = std::move(*started);
        return {};
    }

    void stop() {
        if (!server)
            return;
        server->stopListening();
        QEventLoop loop;
        bool isDone = false;
        server->endCommands([&] {
            isDone = true;
            loop.quit();
        });
        if (!isDone)
            loop.exec();
        server.reset();
    }

    /// What a client's process would do.
    Result call(const std::vector<std::string>& arguments, const std::string& input = {},
                const ClientOptions& options = {},
                const std::function<bool()>& mayContinue = {}) const {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const Console console{.in = in,
                              .out = out,
                              .err = err,
                              .colored = true,
                              .workingFolder = scratch.root(),
                              .mayContinue = mayContinue};
        const auto code = carriedOutByInstance(arguments, console, folders, options);
        return {code, out.str(), err.str()};
    }

    /// Runs `work` on another thread while the event loop goes round here.
    template <typename Work>
    auto whileServing(Work work) {
        QEventLoop loop;
        auto result = std::async(std::launch::async, [&] {
            auto value = work();
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
            return value;
        });
        loop.exec();
        return result.get();
    }

    Result serve(const std::vector<std::string>& arguments, const std::string& input = {},
                 const ClientOptions& options = {}) {
        return whileServing([&] { return call(arguments, input, options); });
    }

private:
    EventLoopApplication application_;
};

} // namespace quillon::testing

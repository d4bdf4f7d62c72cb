#include "service/Instance.h"

#include "service/CommandClient.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

Expected<std::unique_ptr<Instance>> Instance::start(Services& services, CommandRunner run) {
    const auto store = services.startInstance();
    if (!store)
        return std::unexpected(store.error());
    const UserFolders& folders = services.platform().folders;
    const std::string path = controlSocketPath(folders);
    auto server = CommandServer::start({.path = path, .greeting = {.dataFolder = folders.data}},
                                       std::move(run));
    if (!server) {
        services.close();
        return failure(ErrorKind::io, u"Commands can't be taken at %1: %2"_s.arg(
                                          pathText(path), server.error().message));
    }
    return std::unique_ptr<Instance>(new Instance(services, **store, std::move(*server)));
}

Instance::Instance(Services& services, AppStore& store, std::unique_ptr<CommandServer> server)
    : services_(services), store_(store), server_(std::move(server)) {}

void Instance::stop(std::function<void()> stopped) {
    if (isStopping_) {
        services_.hurry();
        server_->endCommands([this] { finishSoon(); });
        return;
    }
    isStopping_ = true;
    stopped_ = std::move(stopped);
    server_->stopListening();
    services_.finish([this] { server_->endCommands([this] { finishSoon(); }); });
}

/// Commands may have changed the store while they ended.
void Instance::finishSoon() {
    if (std::exchange(isEnding_, true))
        return;
    // We may be within an earlier finish().
    QMetaObject::invokeMethod(
        &context_, [this] { services_.finish([this] { stopped_(); }); }, Qt::QueuedConnection);
}

} // namespace quillon

#include "assistant/backends/AIManager.h"
#include "assistant/backends/ModelDownload.h"
#include "cli/LineBuffer.h"
#include "cli/LocalModelChoice.h"
#include "cli/ProgressBar.h"
#include "cli/Verbs.h"
#include "model/RawValue.h"
#include "service/Signal.h"

#include <mutex>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the download and the command that waits for it share.
struct Pull {
    Signal ended;
    Expected<void> result;
    std::mutex lock; ///< guards what follows
    PullProgress progress;

    void set(PullProgress now) {
        const std::scoped_lock guard(lock);
        progress = now;
    }
    PullProgress now() {
        const std::scoped_lock guard(lock);
        return progress;
    }
};

/// Nothing when the command is called off, and then so is the download.
std::optional<Expected<void>> download(const QString& name, const Console& console,
                                       Services& services) {
    Pull pull;
    std::unique_ptr<ModelDownload> running;
    services.onLoop([&] {
        AIManager& assistant = services.assistant();
        const auto progressed = [&](PullProgress progress) {
            pull.set(progress);
            assistant.noteDownload(progress.percent());
        };
        const auto ended = [&](Expected<void> result) {
            pull.result = std::move(result);
            pull.ended.raise();
        };
        running = std::make_unique<ModelDownload>(
            assistantSetting(services, u"ai.localHost"), name,
            ModelDownload::Listener{.progressed = progressed, .done = ended});
        assistant.noteDownload(0);
    });
    ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
    const bool isDone = pull.ended.wait([&] {
        const PullProgress progress = pull.now();
        bar.updateBytes(progress.done, progress.total);
        return !console.mayContinue || console.mayContinue();
    });
    services.onLoop([&] {
        running.reset();
        services.assistant().noteDownload(std::nullopt);
    });
    return isDone ? std::optional(pull.result) : std::nullopt;
}

/// What has become of it: a server may say that it has a model, and mean another machine's.
ExitCode tellDownloaded(const QString& name, const Console& console, Services& services) {
    const auto own = localModels(console, services, name);
    const auto asked = localModels(console, services);
    if (!own || !asked)
        return ExitCode::someFailed;
    if (own->state.kind == LocalModelState::Kind::elsewhere) {
        console.say(statusOf(own->state).message);
        return ExitCode::someFailed;
    }
    const bool isUsed = asked->state.name == own->state.name;
    LineBuffer(console.out, false)
        .add(isUsed ? u"%1 is downloaded."_s.arg(name)
                    : u"%1 is downloaded. To use it: quillon model use %1"_s.arg(name))
        .endLine();
    return ExitCode::done;
}

} // namespace

ExitCode modelPullCommand(const ModelOptions& options, const Console& console, Services& services) {
    const QString name = options.name.empty() ? toQString(recommendedModel)
                                              : QString::fromStdString(options.name).trimmed();
    if (namesElsewhere(name)) {
        console.say(statusOf({.kind = LocalModelState::Kind::elsewhere, .name = name}).message);
        return ExitCode::usage;
    }
    const auto downloaded = download(name, console, services);
    if (!downloaded) {
        console.say(
            u"The download is stopped; “quillon model pull %1” goes on from there"_s.arg(name));
        return ExitCode::someFailed;
    }
    if (!*downloaded) {
        console.say(downloaded->error());
        return ExitCode::someFailed;
    }
    return tellDownloaded(name, console, services);
}

} // namespace quillon

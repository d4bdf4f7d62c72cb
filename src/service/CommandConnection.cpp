#include "service/CommandConnection.h"

#include "service/RemoteStreams.h"

namespace quillon {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr std::chrono::seconds requestPatience{10};
constexpr std::chrono::milliseconds betweenLooksForCancel{20};
constexpr std::chrono::milliseconds betweenWakings{500};

} // namespace

void CommandConnection::serve(
    const CommandRunner& run,
    const std::function<void(const std::vector<std::string>&)>& received) {
    std::optional<Frame> frame;
    {
        const std::scoped_lock guard(receiving_);
        frame = receive(SteadyClock::now() + requestPatience);
    }
    const auto request =
        frame && frame->type == FrameType::request ? unpackRequest(frame->payload) : std::nullopt;
    if (!request)
        return hangUp();
    received(request->arguments);

    RemoteInput in(*this);
    RemoteOutput out(*this, FrameType::output);
    RemoteOutput err(*this, FrameType::errors);
    const Console console{
        .in = in,
        .out = out,
        .err = err,
        .colored = request->colored,
        .showsProgress = request->showsProgress,
        .workingFolder = request->workingFolder,
        .mayContinue = [this] { return mayContinue(); },
        .askInSecret = [this](const std::string& question) { return secretLine(question); }};
    const ExitCode code = run(request->arguments, console);
    // Sent even when the command has left the streams in a failed state.
    (void)out.rdbuf()->pubsync();
    (void)err.rdbuf()->pubsync();
    send(FrameType::ended, std::string(1, char(code)));
    // What has been sent still arrives.
    hangUp();
}

void CommandConnection::sayAlive() {
    // Whoever is sending at this moment is telling as much.
    const std::unique_lock guard(sending_, std::try_to_lock);
    if (guard && !socket_.sendNow(encodeFrame(FrameType::beat)))
        hangUp();
}

void CommandConnection::hangUp() {
    isCancelled_ = true;
    socket_.end();
}

bool CommandConnection::mayContinue() {
    // Whoever holds it is waiting for input, and will notice.
    const std::unique_lock guard(receiving_, std::try_to_lock);
    if (guard && !isCancelled_ && SteadyClock::now() >= nextLook_)
        lookForCancel();
    return !isCancelled_;
}

bool CommandConnection::send(FrameType type, std::string_view payload) {
    const std::scoped_lock guard(sending_);
    if (socket_.send(encodeFrame(type, payload)))
        return true;
    isCancelled_ = true;
    return false;
}

std::string CommandConnection::input(const std::string& question) {
    const std::scoped_lock guard(receiving_);
    if (isCancelled_ || !send(FrameType::wantsInput, question))
        return {};
    while (!isCancelled_)
        if (const auto frame = receive(SteadyClock::now() + betweenWakings)) {
            if (frame->type == FrameType::input)
                return frame->payload;
            isCancelled_ = true;
        }
    return {};
}

std::optional<std::string> CommandConnection::secretLine(const std::string& question) {
    std::string line = input(question);
    if (line.empty())
        return std::nullopt;
    if (line.ends_with('\n'))
        line.pop_back();
    return line;
}

/// Nothing when none has come by then. A stream that has ended, or can't be understood, cancels.
std::optional<Frame> CommandConnection::receive(SteadyClock::time_point deadline) {
    for (;;) {
        auto frame = reader_.next();
        if (!frame)
            isCancelled_ = true;
        if (!frame || *frame)
            return frame.value_or(std::nullopt);
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            std::max(deadline - SteadyClock::now(), SteadyClock::duration::zero()));
        const auto bytes = socket_.receive(left);
        if (!bytes && bytes.error().kind == ErrorKind::timedOut)
            return std::nullopt;
        if (!bytes || bytes->empty()) {
            isCancelled_ = true;
            return std::nullopt;
        }
        reader_.add(*bytes);
    }
}

void CommandConnection::lookForCancel() {
    nextLook_ = SteadyClock::now() + betweenLooksForCancel;
    // Nothing but a cancel may come unasked.
    if (receive(SteadyClock::now()))
        isCancelled_ = true;
}

} // namespace quillon

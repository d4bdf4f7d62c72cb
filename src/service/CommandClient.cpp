#include "service/CommandClient.h"

#include "platform/FileNames.h"
#include "service/Frames.h"

#include <array>
#include <filesystem>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using SteadyClock = std::chrono::steady_clock;

/// How often a request to stop is looked for.
constexpr std::chrono::milliseconds betweenLooks{100};

std::string currentFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::current_path(error);
    return error ? "/" : folder.string();
}

/// The command's end of one control connection.
class CommandClient {
public:
    CommandClient(LocalSocket socket, const Console& console, std::chrono::milliseconds patience)
        : socket_(std::move(socket)), console_(console), patience_(patience) {}

    std::optional<ExitCode> run(const std::vector<std::string>& arguments,
                                const std::string& dataFolder) {
        expectMore();
        if (receive() != Received::frame)
            return isHung_ ? std::optional(giveUp()) : std::nullopt;
        const auto greeting =
            frame_.type == FrameType::greeting ? unpackGreeting(frame_.payload) : std::nullopt;
        if (!greeting || greeting->dataFolder != dataFolder)
            return std::nullopt;
        if (greeting->protocol != Greeting().protocol) {
            console_.say(u"The running Quillon is version %1 and this is version %2; "
                         "restart it to go on"_s.arg(QString::fromStdString(greeting->version),
                                                     QStringLiteral(QUILLON_VERSION)));
            return ExitCode::unreachable;
        }
        const std::string folder =
            console_.workingFolder.empty() ? currentFolder() : console_.workingFolder;
        const std::string request = packRequest({.workingFolder = folder,
                                                 .colored = console_.colored,
                                                 .showsProgress = console_.showsProgress,
                                                 .arguments = arguments});
        if (request.size() > largestPayload) {
            console_.say(u"The command line is too long for the running Quillon"_s);
            return ExitCode::usage;
        }
        isAsked_ = socket_.send(encodeFrame(FrameType::request, request));
        return isAsked_ ? follow() : lost();
    }

private:
    enum class Received { frame, nothing };

    ExitCode follow() {
        expectMore();
        while (receive() == Received::frame) {
            if (frame_.type == FrameType::ended)
                return ExitCode(frame_.payload.empty() ? 0 : frame_.payload.front());
            handle();
            expectMore();
        }
        return isHung_ ? giveUp() : lost();
    }

    void handle() {
        if (frame_.type == FrameType::output)
            console_.out.write(frame_.payload.data(), std::streamsize(frame_.payload.size()))
                .flush();
        else if (frame_.type == FrameType::errors)
            console_.err.write(frame_.payload.data(), std::streamsize(frame_.payload.size()))
                .flush();
        else if (frame_.type == FrameType::wantsInput)
            sendInput(frame_.payload);
    }

    void sendInput(const std::string& question) {
        if (!question.empty()) {
            const auto line = console_.secretLine(question);
            std::ignore = socket_.send(encodeFrame(FrameType::input, line ? *line + '\n' : ""));
            return;
        }
        std::array<char, 1 << 14> space;
        console_.in.read(space.data(), space.size());
        const auto count = std::size_t(console_.in.gcount());
        // A failure shows when the next frame is read.
        std::ignore = socket_.send(encodeFrame(FrameType::input, {space.data(), count}));
    }

    /// Reads the next frame into frame_. Passes a request to stop on.
    Received receive() {
        for (;;) {
            auto frame = reader_.next();
            if (!frame)
                return Received::nothing;
            if (*frame) {
                frame_ = std::move(**frame);
                return Received::frame;
            }
            if (isAsked_ && !isCancelled_ && console_.mayContinue && !console_.mayContinue()) {
                isCancelled_ = true;
                std::ignore = socket_.send(encodeFrame(FrameType::cancel));
            }
            const auto bytes = socket_.receive(betweenLooks);
            if (bytes && !bytes->empty()) {
                reader_.add(*bytes);
                continue;
            }
            if (bytes || bytes.error().kind != ErrorKind::timedOut)
                return Received::nothing;
            isHung_ = SteadyClock::now() >= deadline_;
            if (isHung_)
                return Received::nothing;
        }
    }

    void expectMore() { deadline_ = SteadyClock::now() + patience_; }

    ExitCode giveUp() const {
        console_.say(u"Quillon is running but doesn't answer; what it was asked for may still be "
                     "done"_s);
        return ExitCode::unreachable;
    }

    ExitCode lost() const {
        console_.say(u"Quillon ended in the middle of this; what was done is in the activity log "
                     "(quillon log)"_s);
        return ExitCode::unreachable;
    }

    LocalSocket socket_;
    const Console& console_;
    std::chrono::milliseconds patience_;
    SteadyClock::time_point deadline_;
    FrameReader reader_;
    Frame frame_{};
    bool isHung_ = false;
    bool isAsked_ = false; ///< the request is sent
    bool isCancelled_ = false;
};

} // namespace

std::string controlSocketPath(const UserFolders& folders) {
    return joinPath(folders.runtime, "quillon.sock");
}

std::optional<ExitCode> carriedOutByInstance(const std::vector<std::string>& arguments,
                                             const Console& console, const UserFolders& folders,
                                             const ClientOptions& options) {
    auto socket = LocalSocket::connect(controlSocketPath(folders), options.patience);
    if (!socket) {
        if (socket.error().kind != ErrorKind::timedOut)
            return std::nullopt;
        console.say(u"Quillon is running but doesn't answer; too many commands wait already"_s);
        return ExitCode::unreachable;
    }
    const auto user = socket->peerUser();
    if (!user || *user != options.user)
        return std::nullopt;
    return CommandClient(std::move(*socket), console, options.patience)
        .run(arguments, folders.data);
}

std::optional<int> instanceProcess(const UserFolders& folders, const ClientOptions& options) {
    auto socket = LocalSocket::connect(controlSocketPath(folders), options.patience);
    if (!socket || socket->peerUser() != options.user)
        return std::nullopt;
    FrameReader reader;
    const auto end = SteadyClock::now() + options.patience;
    while (SteadyClock::now() < end) {
        const auto frame = reader.next();
        if (!frame)
            break;
        if (*frame) {
            const auto greeting = unpackGreeting((*frame)->payload);
            const auto process = socket->peerProcess();
            const bool isOurs = greeting && greeting->dataFolder == folders.data;
            return isOurs && process ? std::optional(*process) : std::nullopt;
        }
        const auto bytes = socket->receive(betweenLooks);
        if (bytes && !bytes->empty())
            reader.add(*bytes);
        else if (bytes || bytes.error().kind != ErrorKind::timedOut)
            break;
    }
    return std::nullopt;
}

} // namespace quillon

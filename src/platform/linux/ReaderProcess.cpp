#include "platform/linux/ReaderProcess.h"

#include "platform/FileNames.h"
#include "platform/linux/ChildSpawn.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/TreeSurvey.h"

#include <QStringDecoder>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using std::chrono::milliseconds;

constexpr std::size_t mostPrinted = 64 * 1024;
constexpr std::size_t plainBytes = 4000;

std::unexpected<Error> noText() {
    return failure(ErrorKind::invalid, u"The file’s text can’t be read"_s);
}

const char* formatOf(TextKind kind) {
    switch (kind) {
    case TextKind::pdf:
        return "pdf";
    case TextKind::image:
        return "image";
    case TextKind::richText:
    case TextKind::document:
    case TextKind::plain:
        break;
    }
    return "document";
}

Expected<Descriptor> openRegularFile(const std::string& path) {
    Expected<Descriptor> file = openForReading(AT_FDCWD, path);
    struct stat status = {};
    if (file && (::fstat(file->get(), &status) != 0 || !S_ISREG(status.st_mode))) {
        return failure(ErrorKind::wrongType, u"It is not a regular file"_s);
    }
    return file;
}

Expected<QString> plainText(int file) {
    std::string bytes(plainBytes, '\0');
    std::size_t have = 0;
    while (have < bytes.size()) {
        const ssize_t got = ::read(file, bytes.data() + have, bytes.size() - have);
        if (got < 0 && errno != EINTR) {
            return systemFailure();
        }
        if (got == 0) {
            break;
        }
        have += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    }
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(have));
}

/// The language of the user's messages, which is probably that of their papers.
std::string language() {
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const value = ::getenv(name);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return "C";
}

/// A child that reads a file, its group, and what it has printed so far.
class RunningReader {
public:
    RunningReader(pid_t pid, Descriptor output, milliseconds limit)
        : pid_(pid)
        , output_(std::move(output))
        , ended_(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)))
        , deadline_(std::chrono::steady_clock::now() + limit) {}

    [[nodiscard]] Expected<QString> finish() {
        const bool isInTime = takeOutput() && awaitEnd();
        // It is not reaped yet, so that the group can't be anybody else's.
        ::kill(-pid_, SIGKILL);
        const bool endedWell = reap();
        if (!isInTime) {
            return failure(ErrorKind::timedOut, u"Reading the file took too long"_s);
        }
        QStringDecoder decode(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
        const QString text = decode(QByteArrayView(printed_));
        return endedWell && printed_.size() <= mostPrinted && !decode.hasError()
                   ? Expected<QString>(text)
                   : noText();
    }

private:
    /// Whether that came to an end before the deadline: all was printed, or too much.
    [[nodiscard]] bool takeOutput() {
        std::array<char, 16 * 1024> piece;
        while (printed_.size() <= mostPrinted) {
            if (!await(output_.get())) {
                return false;
            }
            const ssize_t size = ::read(output_.get(), piece.data(), piece.size());
            if (size == 0 || (size < 0 && errno != EAGAIN && errno != EINTR)) {
                return true;
            }
            printed_.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
        }
        return true;
    }

    /// A child that printed too much may go on printing; it is not waited for.
    /// A child whose end can't be watched isn't either: being at its end, it printed all that it
    /// had.
    [[nodiscard]] bool awaitEnd() {
        return printed_.size() > mostPrinted || !ended_.isOpen() || await(ended_.get());
    }

    /// Until something happens there, or the deadline, at which it is false.
    [[nodiscard]] bool await(int descriptor) const {
        pollfd source{.fd = descriptor, .events = POLLIN, .revents = 0};
        for (;;) {
            const auto left =
                std::chrono::ceil<milliseconds>(deadline_ - std::chrono::steady_clock::now());
            if (left.count() <= 0) {
                return false;
            }
            const int found = ::poll(&source, 1, static_cast<int>(left.count()));
            if (found > 0 || (found < 0 && errno != EINTR)) {
                return found > 0;
            }
        }
    }

    /// Whether it ended by itself and said that all went well.
    [[nodiscard]] bool reap() const {
        int status = 0;
        pid_t reaped = 0;
        do {
            reaped = ::waitpid(pid_, &status, 0);
        } while (reaped < 0 && errno == EINTR);
        return reaped == pid_ && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

    pid_t pid_;
    Descriptor output_;
    Descriptor ended_;
    std::chrono::steady_clock::time_point deadline_;
    std::string printed_;
};

} // namespace

Expected<QString> ReaderProcess::read(const std::string& path, TextKind kind) {
    const Expected<Descriptor> file = openRegularFile(path);
    if (!file) {
        return std::unexpected(file.error());
    }
    if (kind == TextKind::plain) {
        return plainText(file->get());
    }
    Expected<Pipe> pipe = openPipe();
    if (!pipe) {
        return std::unexpected(pipe.error());
    }
    const Expected<pid_t> pid = startChild({
        .executable = program_,
        .arguments = {formatOf(kind)},
        // One thread is all that recognizing words may use: the reader may start none.
        .environment = {"LC_ALL=C.UTF-8", "OMP_THREAD_LIMIT=1", "LANG=" + language()},
        .workingFolder = "/",
        .input = file->get(),
        .output = pipe->writingEnd.get(),
    });
    if (!pid) {
        return failure(pid.error().kind,
                       u"Quillon’s reader can’t be started: "_s + pid.error().message);
    }
    pipe->writingEnd = Descriptor();
    return RunningReader(*pid, std::move(pipe->readingEnd), limit_).finish();
}

std::string readerProgram() {
    std::string self(PATH_MAX, '\0');
    const ssize_t length = ::readlink("/proc/self/exe", self.data(), self.size());
    self.resize(static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
    const std::string_view folder = parentPath(self);
    const std::string beside = joinPath(folder, "quillon-reader");
    return ::access(beside.c_str(), X_OK) == 0
               ? beside
               : joinPath(parentPath(folder), "libexec/quillon/quillon-reader");
}

} // namespace quillon

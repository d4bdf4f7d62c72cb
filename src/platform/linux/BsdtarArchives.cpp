#include "platform/linux/BsdtarArchives.h"

#include "platform/FileNames.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/FreeName.h"
#include "platform/linux/Removal.h"
#include "platform/linux/SameTree.h"
#include "platform/linux/SystemError.h"
#include "platform/linux/UnpackedTree.h"

#include <QStringList>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr std::chrono::minutes longestStandstill{10};

/// A private folder and in it the one that an archive is unpacked into, with a new folder's usual
/// permissions. The private one goes, with all that is still in it, at the end.
class Staging {
public:
    Staging(const Descriptor& folder, std::string path, std::string name)
        : folder_(folder), path_(std::move(path)), name_(std::move(name)) {}
    ~Staging() {
        if (isMade_) {
            // Should this fail, a hidden leftover stays, which bears this process's tag.
            (void)removeTemporary(folder_.get(), name_);
        }
    }
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    [[nodiscard]] Expected<void> make() {
        isMade_ = ::mkdirat(folder_.get(), name_.c_str(), S_IRWXU) == 0;
        const bool isWhole = isMade_ && ::mkdirat(folder_.get(), contents().c_str(),
                                                  S_IRWXU | S_IRWXG | S_IRWXO) == 0;
        return isWhole ? Expected<void>{} : systemFailure(errno);
    }

    [[nodiscard]] Expected<FreeName> publish(const std::string& wantedName) {
        return claimFreeName(wantedName, [this](const std::string& name) {
            return renameWithoutReplacing(folder_.get(), contents(), folder_.get(), name);
        });
    }

    /// Relative to the folder it was made in.
    [[nodiscard]] std::string contents() const { return joinPath(name_, "contents"); }
    [[nodiscard]] std::string contentsPath() const { return joinPath(path_, contents()); }

private:
    const Descriptor& folder_;
    std::string path_;
    std::string name_;
    bool isMade_ = false;
};

/// Says whether the unpacking is still within its limits and getting on. Measuring a big tree takes
/// a while, so that it is done for a tenth of the time at most.
class LimitWatch {
public:
    LimitWatch(int folder, std::string root, const UnpackLimits& limits)
        : folder_(folder), root_(std::move(root)), limits_(limits) {}

    [[nodiscard]] bool mayContinue() {
        const SteadyClock::time_point start = SteadyClock::now();
        if (start < next_) {
            return mayContinue_;
        }
        const TreeSize size = measureTree(folder_, root_, limits_);
        const SteadyClock::time_point end = SteadyClock::now();
        if (size != size_) {
            size_ = size;
            lastGrowth_ = end;
        }
        next_ = end + 9 * (end - start);
        mayContinue_ = size.isWithin(limits_) && end - lastGrowth_ < longestStandstill;
        return mayContinue_;
    }

    [[nodiscard]] std::unexpected<Error> reasonToStop() const {
        return size_.isWithin(limits_)
                   ? failure(ErrorKind::timedOut, QStringLiteral("unpacking came to a standstill"))
                   : exceedsLimits();
    }

private:
    int folder_;
    std::string root_;
    const UnpackLimits& limits_;
    SteadyClock::time_point next_;
    SteadyClock::time_point lastGrowth_ = SteadyClock::now();
    TreeSize size_;
    bool mayContinue_ = true;
};

/// Refuses what can't be an archive. Plain text must not reach the tool: it would take some for a
/// list of files to be gathered from anywhere on this machine.
Expected<void> checkArchive(const std::string& archive) {
    const Descriptor file(::open(archive.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat found = {};
    if (!file.isOpen() || ::fstat(file.get(), &found) != 0) {
        return systemFailure(errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return failure(ErrorKind::wrongType, QStringLiteral("it is not a regular file"));
    }
    std::array<char, 512> start{};
    const ssize_t size = ::pread(file.get(), start.data(), start.size(), 0);
    if (size < 0) {
        return systemFailure(errno);
    }
    const auto isText = [](char byte) {
        return static_cast<unsigned char>(byte) >= 0x20 ||
               std::string_view("\t\n\r").contains(byte);
    };
    return std::all_of(start.begin(), start.begin() + size, isText)
               ? failure(ErrorKind::invalid, QStringLiteral("it is not an archive"))
               : Expected<void>{};
}

ProcessRequest bsdtarRequest(const std::string& archive, const std::string& staging) {
    ProcessRequest request;
    request.executable = "/usr/bin/bsdtar";
    // Without -P it refuses "..", absolute names and writing through links. What an archive says of
    // owners, access lists and flags is its maker's affair. Nobody is there to type a passphrase:
    // with a wrong one it fails instead of asking.
    request.arguments = {"-x",
                         "--no-same-owner",
                         "--no-same-permissions",
                         "--no-acls",
                         "--no-xattrs",
                         "--no-fflags",
                         "--no-mac-metadata",
                         "--passphrase",
                         "no passphrase",
                         "-f",
                         archive,
                         "-C",
                         staging};
    request.environment = {{"LC_ALL", "C.UTF-8"}};
    request.workingFolder = staging;
    return request;
}

/// The tool's first lines without its name and without the folder that nobody has seen.
QString messageFor(const QString& output, const std::string& staging) {
    if (output.contains(QLatin1String("passphrase"), Qt::CaseInsensitive)) {
        return QStringLiteral("the archive is protected by a password");
    }
    constexpr qsizetype mostLines = 3;
    QStringList lines;
    for (QString line : output.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        line.remove(QString::fromStdString(staging) + QLatin1Char('/'));
        line.remove(QString::fromStdString(staging));
        if (line.startsWith(QLatin1String("bsdtar: "))) {
            line.remove(0, 8);
        }
        const bool isSummary = line.startsWith(QLatin1String("Error exit delayed"));
        if (!isSummary && lines.size() < mostLines) {
            lines.append(line.trimmed());
        }
    }
    return lines.join(QLatin1String("; "));
}

bool isEmpty(int folder, const std::string& name) {
    return measureTree(folder, name, {.entries = 1, .bytes = 1}).entries == 0;
}

Expected<void> extract(Processes& processes, const std::string& archive, int folder,
                       const Staging& staging, const UnpackLimits& limits) {
    LimitWatch watch(folder, staging.contents(), limits);
    ProcessRequest request = bsdtarRequest(archive, staging.contentsPath());
    request.mayContinue = [&watch] { return watch.mayContinue(); };
    const Expected<ProcessResult> result = processes.run(request);
    if (!result) {
        return std::unexpected(result.error());
    }
    if (result->end == ProcessResult::End::stopped) {
        return watch.reasonToStop();
    }
    if (!result->succeeded()) {
        return failure(ErrorKind::invalid, messageFor(result->errorOutput, staging.contentsPath()));
    }
    return {};
}

/// Everything that must hold before anybody reads what was unpacked.
Expected<void> inspect(int folder, const Staging& staging, const UnpackLimits& limits) {
    if (Expected<void> safe = makeSafe(folder, staging.contents()); !safe) {
        return safe;
    }
    if (isEmpty(folder, staging.contents())) {
        return failure(ErrorKind::invalid, {});
    }
    if (!measureTree(folder, staging.contents(), limits).isWithin(limits)) {
        return exceedsLimits();
    }
    return {};
}

Expected<Unpacked> publish(int folder, Staging& staging, const std::string& wantedFolder) {
    const std::string wantedName(lastComponent(wantedFolder));
    const auto same = findSame(folder, staging.contents(), folder, wantedName);
    if (!same) {
        return std::unexpected(same.error());
    }
    // The archive may go to the trash after this, so what it held has to be on the disk.
    if (::syncfs(folder) != 0) {
        return systemFailure(errno);
    }
    const std::string parent(parentPath(wantedFolder));
    if (*same) {
        return Unpacked{joinPath(parent, **same), false};
    }
    const Expected<FreeName> published = staging.publish(wantedName);
    if (!published) {
        return std::unexpected(published.error());
    }
    return Unpacked{joinPath(parent, published->name), true};
}

} // namespace

BsdtarArchives::BsdtarArchives(Processes& processes, std::string temporaryTag)
    : processes_(processes), temporaries_(std::move(temporaryTag)) {}

Expected<Unpacked> BsdtarArchives::unpack(const std::string& archive,
                                          const std::string& wantedFolder,
                                          const UnpackLimits& limits) {
    if (Expected<void> checked = checkArchive(archive); !checked) {
        return std::unexpected(checked.error());
    }
    const std::string parent(parentPath(wantedFolder));
    const Descriptor folder(::open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) {
        return systemFailure(errno);
    }
    Staging staging(folder, parent, temporaries_.nextFree(folder.get(), "unpack"));
    Expected<void> done = staging.make();
    if (done) {
        done = extract(processes_, archive, folder.get(), staging, limits);
    }
    if (done) {
        done = inspect(folder.get(), staging, limits);
    }
    if (!done) {
        return std::unexpected(done.error());
    }
    return publish(folder.get(), staging, wantedFolder);
}

} // namespace quillon

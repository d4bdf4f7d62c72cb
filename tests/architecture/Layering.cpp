#include "architecture/Layering.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <set>
#include <sstream>

namespace quillon::test {
namespace {

/// Top to bottom: a folder may use itself and any folder after it. main.cpp stands above them all.
/// The reader is a program of its own, on the platform alone; nobody includes it.
constexpr std::array<std::string_view, 11> layers{"main.cpp", "app",       "cli",     "ui",
                                                  "service",  "assistant", "store",   "engine",
                                                  "model",    "reader",    "platform"};

constexpr std::string_view linuxFolder = "platform/linux/";

std::ptrdiff_t rankOf(std::string_view path) {
    const std::string_view top = path.substr(0, path.find('/'));
    return std::ranges::find(layers, top) - layers.begin();
}

constexpr std::ptrdiff_t noLayer = std::ssize(layers);
const std::ptrdiff_t storeRank = rankOf("store");

/// A pattern for a whole text.
QRegularExpression whole(const char* pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)));
}

bool isOperatingSystemHeader(const std::string& name) {
    static const QRegularExpression pattern = whole(
        R"((sys|linux|arpa|net|netinet|asm|attr|acl|bits)/.*|(unistd|fcntl|dirent|pwd|grp|poll|spawn|signal|csignal|pthread|dlfcn|termios|utime|fts|ftw|glob|syslog|wait|mntent)(\.h)?|windows\.h)");
    return pattern.match(QString::fromStdString(name)).hasMatch();
}

std::string withoutComment(const std::string& line) {
    return line.substr(0, line.find("//"));
}

class FileCheck {
public:
    FileCheck(const SourceFile& file, const std::set<std::string>& known,
              std::vector<std::string>& faults)
        : file_(file)
        , rank_(rankOf(file.path))
        , onLinux_(file.path.starts_with(linuxFolder))
        , inReader_(file.path.starts_with("reader/"))
        , known_(known)
        , faults_(faults) {}

    void run() {
        if (rank_ == noLayer)
            say("is in no layer");
        std::istringstream text(file_.text);
        for (std::string line; std::getline(text, line);) {
            ++number_;
            checkLine(withoutComment(line));
        }
    }

private:
    void checkLine(const std::string& line) {
        static const QRegularExpression quoted = whole(R"re(\s*#\s*include\s*"([^"]+)".*)re");
        static const QRegularExpression angled = whole(R"(\s*#\s*include\s*<([^>]+)>.*)");
        static const QRegularExpression conditional = whole(R"(\s*#\s*(if|ifdef|ifndef|elif)\b.*)");
        static const QRegularExpression object = whole(R"(.*\b(Q_OBJECT|Q_GADGET|QObject)\b.*)");
        const QString text = QString::fromStdString(line);
        if (const auto include = quoted.match(text); include.hasMatch())
            checkInclude(include.captured(1).toStdString());
        else if (const auto header = angled.match(text); header.hasMatch())
            checkSystemHeader(header.captured(1).toStdString());
        else if (!onLinux_ && conditional.match(text).hasMatch())
            say("conditional code outside of platform/linux");
        if (rank_ > storeRank && !onLinux_ && object.match(text).hasMatch())
            say("QObject below store");
    }

    void checkInclude(const std::string& name) {
        if (!known_.contains(name))
            say("includes \"" + name + "\", which is not there");
        else if (rankOf(name) < rank_)
            say("includes upward: " + name);
        else if (name.starts_with("reader/") && !inReader_)
            say("only reader may include reader: " + name);
        else if (name.starts_with(linuxFolder) && !onLinux_ && !inReader_ &&
                 !file_.path.starts_with("service/"))
            say("only service may include platform/linux: " + name);
    }

    void checkSystemHeader(const std::string& name) {
        if (!onLinux_ && isOperatingSystemHeader(name))
            say("operating-system header outside of platform/linux: " + name);
        if (known_.contains(name))
            say("includes our own " + name + " in angle brackets");
    }

    void say(const std::string& what) {
        faults_.push_back(file_.path + ":" + std::to_string(number_) + ": " + what);
    }

    const SourceFile& file_;
    std::ptrdiff_t rank_;
    bool onLinux_;
    bool inReader_;
    const std::set<std::string>& known_;
    std::vector<std::string>& faults_;
    int number_ = 0;
};

} // namespace

std::vector<std::string> layeringFaults(const std::vector<SourceFile>& files) {
    std::set<std::string> known;
    for (const SourceFile& file : files)
        known.insert(file.path);
    std::vector<std::string> faults;
    for (const SourceFile& file : files)
        FileCheck(file, known, faults).run();
    return faults;
}

} // namespace quillon::test

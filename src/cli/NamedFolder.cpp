#include "cli/NamedFolder.h"

#include "cli/ShellWord.h"
#include "model/NearestWord.h"
#include "store/Sentences.h"

#include <algorithm>
#include <filesystem>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Without "..", and without a slash at the end.
std::string tidied(const std::string& path) {
    std::string text = std::filesystem::path(path).lexically_normal().string();
    while (text.size() > 1 && text.ends_with('/'))
        text.pop_back();
    return text;
}

QString nearestWatched(const std::string& path, const std::vector<WatchedFolder>& folders) {
    if (folders.empty())
        return u"no folder is; begin with: quillon folder add %1"_s.arg(shellWord(pathText(path)));
    std::vector<std::string> paths;
    for (const WatchedFolder& folder : folders)
        paths.push_back(folder.path.toStdString());
    return u"the nearest that is: %1"_s.arg(pathText(nearestWord(path, paths)));
}

} // namespace

std::string absolutePath(const std::string& path, const Console& console) {
    std::error_code error;
    const std::filesystem::path start = console.workingFolder.empty()
                                            ? std::filesystem::current_path(error)
                                            : std::filesystem::path(console.workingFolder);
    return error ? path : (start / path).string();
}

Chosen<WatchedFolder> watchedFolderAt(const std::string& path,
                                      const std::vector<WatchedFolder>& folders,
                                      const Console& console, Services& services) {
    const FileSystem& fileSystem = services.platform().fileSystem;
    const std::string absolute = absolutePath(path, console);
    const std::string plain = tidied(absolute);
    const std::string resolved = fileSystem.resolved(absolute);
    const auto found = std::ranges::find_if(folders, [&](const WatchedFolder& folder) {
        const std::string watched = folder.path.toStdString();
        return watched == plain || watched == resolved || fileSystem.resolved(watched) == resolved;
    });
    if (found != folders.end())
        return *found;
    const auto status = fileSystem.status(absolute);
    const QString nearest = nearestWatched(plain, folders);
    if (!status)
        return refusal(ExitCode::unreadable,
                       u"The folder %1 can't be read: %2; it is not watched, and %3"_s.arg(
                           pathText(path), status.error().message, nearest));
    return refusal(ExitCode::usage,
                   u"The folder %1 is not watched; %2"_s.arg(pathText(path), nearest));
}

Chosen<WatchedFolder> plainFolderAt(const std::string& path, const Console& console,
                                    Services& services) {
    const std::string resolved =
        services.platform().fileSystem.resolved(absolutePath(path, console));
    if (!isValidUtf8(resolved))
        return refusal(
            ExitCode::unreadable,
            u"The folder %1 can't be read: its path is not valid UTF-8"_s.arg(pathText(path)));
    WatchedFolder folder;
    folder.id = QUuid();
    folder.path = pathText(resolved);
    return folder;
}

} // namespace quillon

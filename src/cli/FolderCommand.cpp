#include "cli/LineBuffer.h"
#include "cli/NamedFolder.h"
#include "cli/OpenFolder.h"
#include "cli/OpenStore.h"
#include "cli/RunOutput.h"
#include "cli/ShellWord.h"
#include "cli/Verbs.h"
#include "platform/FileNames.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The path under which a folder is watched. A refusal says why it can't be.
Chosen<QString> watchablePath(const std::string& given, const Console& console,
                              const FileSystem& fileSystem) {
    const auto refused = [&](const QString& why) {
        return refusal(ExitCode::unreadable,
                       u"The folder %1 can't be watched: %2"_s.arg(pathText(given), why));
    };
    const std::string path = fileSystem.resolved(absolutePath(given, console));
    if (!isValidUtf8(path))
        return refused(u"its path is not valid UTF-8"_s);
    if (const auto listing = fileSystem.list(path, {}); !listing)
        return refused(listing.error().message);
    return pathText(path);
}

/// The timing comes last, since choosing it tidies the folder.
void apply(const FolderSettings& settings, const QUuid& id, AppStore& store) {
    if (settings.isRecursive)
        store.setRecursive(*settings.isRecursive, id);
    if (settings.skipOnlineOnly)
        store.setSkipOnlineOnly(*settings.skipOnlineOnly, id);
    if (settings.onlyNewFiles)
        store.setOnlyNewFiles(*settings.onlyNewFiles, id);
    if (settings.color)
        store.setColor(*settings.color, id);
    if (settings.symbol)
        store.setSymbol(QString::fromStdString(*settings.symbol), id);
    if (settings.timing)
        store.setTiming(*settings.timing, id);
}

struct OpenFolders {
    StoreAccess store;
    std::vector<WatchedFolder> folders;
};

/// Says why when the store can't be opened or one of the folders is not watched.
std::expected<OpenFolders, ExitCode> openFolders(const std::vector<std::string>& paths,
                                                 const Console& console, Services& services) {
    const auto store = openStoreFor(console, services);
    if (!store)
        return std::unexpected(store.error());
    const auto watched = store->call([](AppStore& appStore) { return appStore.folders(); });
    OpenFolders open{.store = *store, .folders = {}};
    for (const std::string& path : paths) {
        auto folder = watchedFolderAt(path, watched, console, services);
        if (!folder)
            return std::unexpected(sayRefusal(folder.error(), console));
        open.folders.push_back(std::move(*folder));
    }
    return open;
}

} // namespace

ExitCode folderAddCommand(const WatchedFolderOptions& options, const Console& console,
                          Services& services) {
    QStringList paths;
    for (const std::string& given : options.folders) {
        const auto path = watchablePath(given, console, services.platform().fileSystem);
        if (!path)
            return sayRefusal(path.error(), console);
        paths.append(*path);
    }
    paths.removeDuplicates();
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();

    QStringList sentences;
    QStringList known;
    for (const QString& path : paths) {
        const bool isKnown =
            store->call([&](AppStore& appStore) { return appStore.folderAt(path) != nullptr; });
        if (isKnown)
            known.append(path);
        else
            sentences.append(u"Watching %1. Give it rules with: quillon rule add --folder %2"_s.arg(
                path, shellWord(path)));
    }
    for (const QString& path : known)
        console.say(u"%1 is watched already; to change how: quillon folder set %2"_s.arg(
            path, shellWord(path)));
    if (sentences.isEmpty())
        return ExitCode::someFailed;
    const auto addAll = [&](AppStore& appStore) {
        for (const QString& path : paths)
            if (const auto id = appStore.addFolder(path))
                apply(options.settings, *id, appStore);
    };
    // A folder that has no rules yet has nothing to tell of its runs.
    const std::vector<RunReport> reports = store->runsOf(addAll, console.mayContinue);
    if (options.json)
        return std::max(tellRunsAsJson(reports, console), sayWhetherSaved(*store, console));
    LineBuffer lines(console.out, console.colored);
    for (const QString& sentence : sentences)
        lines.add(sentence).endLine();
    return std::max(sayHowRunsEnded(reports, console), sayWhetherSaved(*store, console));
}

ExitCode folderRemoveCommand(const WatchedFolderOptions& options, const Console& console,
                             Services& services) {
    const auto open = openFolders(options.folders, console, services);
    if (!open)
        return open.error();
    open->store.call([&](AppStore& appStore) {
        for (const WatchedFolder& folder : open->folders)
            appStore.removeFolder(folder.id);
    });
    LineBuffer lines(console.out, console.colored);
    for (const WatchedFolder& folder : open->folders)
        lines.add(u"%1 is not watched any more; its files stay as they are."_s.arg(folder.path))
            .endLine();
    return sayWhetherSaved(open->store, console);
}

ExitCode folderSetCommand(const WatchedFolderOptions& options, const Console& console,
                          Services& services) {
    const auto open = openFolders(options.folders, console, services);
    if (!open)
        return open.error();
    QStringList sentences;
    for (const WatchedFolder& folder : open->folders)
        sentences.append(u"%1 is changed."_s.arg(folder.path));
    return changeAndRun(
        open->store,
        [&](AppStore& appStore) {
            for (const WatchedFolder& folder : open->folders)
                apply(options.settings, folder.id, appStore);
        },
        sentences, options.json, console);
}

} // namespace quillon

#include "service/Services.h"

#include "assistant/DobbinChat.h"
#include "assistant/DobbinJudge.h"
#include "assistant/DobbinResolver.h"
#include "assistant/FileText.h"
#include "assistant/FolderSuggestions.h"
#include "assistant/SuggestionMemory.h"
#include "assistant/backends/AIManager.h"
#include "platform/FileNames.h"
#include "platform/linux/BsdtarArchives.h"
#include "platform/linux/DesktopNotifier.h"
#include "platform/linux/IniSettings.h"
#include "platform/linux/InotifyWatching.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxStorage.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/MimeContentTypes.h"
#include "platform/linux/NextcloudFiles.h"
#include "platform/linux/ReaderProcess.h"
#include "platform/linux/SecretServiceKeychain.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/TrashPlaces.h"
#include "platform/linux/XattrProvenance.h"
#include "platform/linux/XattrTags.h"
#include "service/ObservedSettings.h"
#include "store/EventLoopTimers.h"
#include "store/StorePlaces.h"
#include "store/ThreadBackground.h"

#include <QObject>
#include <QRandomGenerator>
#include <QThread>

#include <thread>

namespace quillon {
namespace {

std::string randomTag() {
    return QString::number(QRandomGenerator::system()->generate64(), 36).toStdString();
}

/// The desktop's trash lies beside Quillon's own folder in the user's data folder.
std::string homeTrash(const UserFolders& folders) {
    return joinPath(parentPath(folders.data), "Trash");
}

} // namespace

struct Services::Machine {
    Machine(const UserFolders& userFolders, SaidIn itsWhere)
        : folders(userFolders), where(itsWhere) {}

    UserFolders folders;
    SaidIn where;
    QObject loop; ///< lives on the event loop's thread
    std::string tag = randomTag();
    LinuxStorage storage;
    LinuxFileSystem fileSystem{tag};
    LinuxTrash trash{fileSystem, homeTrash(folders)};
    LinuxProcesses processes;
    BsdtarArchives archives{processes, tag};
    XattrTags tags;
    XattrProvenance provenance;
    NextcloudFiles cloudFiles;
    MimeContentTypes contentTypes;
    SystemClock clock;
    Platform platform{.fileSystem = fileSystem,
                      .trash = trash,
                      .tags = tags,
                      .provenance = provenance,
                      .cloudFiles = cloudFiles,
                      .contentTypes = contentTypes,
                      .processes = processes,
                      .archives = archives,
                      .clock = clock,
                      .folders = folders};
    IniSettings settingsFile{joinPath(folders.config, "Quillon.conf")};
    ObservedSettings settings{settingsFile};
    DobbinJudge judge{fileSystem, clock};
    SuggestionMemory suggestionMemory{storage, fileSystem, StorePlaces(folders.data)};
};

struct Services::Assistant {
    SecretServiceKeychain keychain{QStringLiteral("com.quillon.app.ai")};
    AIManager manager;

    explicit Assistant(Machine& machine)
        : manager(
              machine.settings, keychain, machine.clock,
              [&judge = machine.judge] { judge.clearAnswers(); }, {}, machine.where) {}
};

/// What only an open store needs. The conversation goes first, then the store, and the resolver
/// before what the background may still be using.
struct Services::OpenStore {
    ReaderProcess reader{readerProgram()};
    FileText texts;
    EventLoopTimers timers;
    ThreadBackground background;
    InotifyWatching watching;
    DesktopNotifier notifier;
    DobbinResolver resolver;
    AppStore::Life life;
    AppStore store;
    std::unique_ptr<DobbinChat> chat;               ///< made when it is first asked for
    std::unique_ptr<FolderSuggestions> suggestions; ///< likewise

    OpenStore(Services& services, std::unique_ptr<StoreSession> session, AppStore::Life itsLife)
        : texts(services.machine_->platform, reader)
        , resolver(services.machine_->judge, texts, background,
                   [&services]() -> ModelAccess& { return services.assistant(); })
        , life(itsLife)
        , store(std::move(session),
                {.platform = services.machine_->platform,
                 .storage = services.machine_->storage,
                 .settings = services.machine_->settings,
                 .timers = timers,
                 .background = background,
                 .watching = watching,
                 .notifier = notifier,
                 .resolver = resolver,
                 .makeEngine =
                     [&services](EngineSettings settings) {
                         return services.engine(std::move(settings));
                     }},
                itsLife) {}
};

Services::Services(const UserFolders& folders, SaidIn where)
    : machine_(std::make_unique<Machine>(folders, where)) {}

Services::~Services() = default;

const Platform& Services::platform() const {
    return machine_->platform;
}

Storage& Services::storage() {
    return machine_->storage;
}

ObservedSettings& Services::settings() {
    return machine_->settings;
}

RuleEngine Services::engine(EngineSettings settings) {
    return RuleEngine(machine_->platform, machine_->judge, std::move(settings));
}

const DobbinJudge& Services::judge() const {
    return machine_->judge;
}

SuggestionMemory& Services::suggestionMemory() {
    return machine_->suggestionMemory;
}

StoreSession::Services Services::storeServices() {
    return {.storage = machine_->storage,
            .fileSystem = machine_->fileSystem,
            .clock = machine_->clock,
            .pause = [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); },
            .trashPlaces = [home = homeTrash(machine_->folders)](
                               const std::string& folder) { return trashPlaces(folder, home); },
            .temporaryTag = machine_->tag};
}

Expected<void> Services::open(AppStore::Life life) {
    if (store_)
        return {};
    auto session = StoreSession::open(StorePlaces(machine_->folders.data), storeServices());
    if (!session)
        return std::unexpected(session.error());
    store_ = std::make_unique<OpenStore>(*this, std::move(*session), life);
    return {};
}

Expected<StoreAccess> Services::openStore() {
    Expected<void> opened;
    onLoop([&] { opened = open(AppStore::Life::command); });
    if (!opened)
        return std::unexpected(opened.error());
    return StoreAccess(store_->store);
}

Expected<StoreSnapshot> Services::viewStore() {
    std::optional<StoreSnapshot> snapshot;
    onLoop([&] {
        if (!store_)
            return;
        snapshot = snapshotOf(store_->store);
        snapshot->isInstance = store_->life == AppStore::Life::instance;
    });
    if (!snapshot) {
        auto view = quillon::viewStore(StorePlaces(machine_->folders.data), storeServices());
        if (!view)
            return std::unexpected(view.error());
        snapshot =
            StoreSnapshot{.state = std::move(view->state), .warnings = std::move(view->warnings)};
    }
    // As they are now: an instance looks seldom.
    for (const WatchedFolder& folder : snapshot->state.folders)
        snapshot->access.insert(folder.id,
                                probeAccess(machine_->fileSystem, folder.path.toStdString()));
    return *snapshot;
}

bool Services::isInstance() const {
    bool result = false;
    onLoop([&] { result = store_ && store_->life == AppStore::Life::instance; });
    return result;
}

AIManager& Services::assistant() {
    if (!assistant_)
        assistant_ = std::make_unique<Assistant>(*machine_);
    return assistant_->manager;
}

Background& Services::background() {
    return store_->background;
}

Timers& Services::timers() {
    return store_->timers;
}

FolderSuggestions& Services::suggestions() {
    if (!store_->suggestions)
        store_->suggestions = std::make_unique<FolderSuggestions>(
            machine_->platform, machine_->judge, machine_->suggestionMemory, machine_->settings,
            store_->background, [this]() -> ModelAccess& { return assistant(); });
    return *store_->suggestions;
}

DobbinChat& Services::chat() {
    if (!store_->chat)
        store_->chat = std::make_unique<DobbinChat>(
            DobbinChat::Surroundings{.store = store_->store,
                                     .platform = machine_->platform,
                                     .judge = machine_->judge,
                                     .storage = machine_->storage,
                                     .settings = machine_->settings,
                                     .background = store_->background,
                                     .assistant = [this]() -> AIManager& { return assistant(); }},
            StorePlaces(machine_->folders.data).chat());
    return *store_->chat;
}

Expected<AppStore*> Services::startInstance() {
    if (store_)
        return failure(ErrorKind::timedOut, QStringLiteral("Quillon is running already"));
    if (auto opened = open(AppStore::Life::instance); !opened)
        return std::unexpected(opened.error());
    return &store_->store;
}

void Services::finish(std::function<void()> done) {
    if (store_)
        store_->store.finish(std::move(done));
    else
        done();
}

void Services::hurry() {
    if (store_)
        store_->store.hurry();
}

void Services::close() {
    store_.reset();
}

void Services::onNotificationClicked(std::function<void(const std::string& token)> clicked) {
    if (store_)
        store_->notifier.onClicked(std::move(clicked));
}

void Services::stopRequested() {
    if (stopHandler_)
        return stopHandler_();
    isStopRequested_ = true;
    hurry();
}

void Services::setStopHandler(std::function<void()> handler) {
    stopHandler_ = std::move(handler);
    if (stopHandler_ && std::exchange(isStopRequested_, false))
        stopHandler_();
}

void Services::onLoop(const std::function<void()>& work) const {
    const bool isHere = machine_->loop.thread() == QThread::currentThread();
    QMetaObject::invokeMethod(&machine_->loop, work,
                              isHere ? Qt::DirectConnection : Qt::BlockingQueuedConnection);
}

} // namespace quillon

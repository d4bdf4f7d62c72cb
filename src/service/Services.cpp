#include "service/Services.h"

#include "assistant/DobbinJudge.h"
#include "platform/FileNames.h"
#include "platform/linux/BsdtarArchives.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxStorage.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/MimeContentTypes.h"
#include "platform/linux/NextcloudFiles.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/TrashPlaces.h"
#include "platform/linux/XattrProvenance.h"
#include "platform/linux/XattrTags.h"

#include <QRandomGenerator>

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
    explicit Machine(const UserFolders& userFolders) : folders(userFolders) {}

    UserFolders folders;
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
    DobbinJudge judge{fileSystem, clock};
};

Services::Services(const UserFolders& folders) : machine_(std::make_unique<Machine>(folders)) {}

Services::~Services() = default;

const Platform& Services::platform() const {
    return machine_->platform;
}

Storage& Services::storage() {
    return machine_->storage;
}

RuleEngine Services::engine(EngineSettings settings) {
    return RuleEngine(machine_->platform, machine_->judge, std::move(settings));
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

Expected<std::unique_ptr<StoreSession>> Services::openStore() {
    return StoreSession::open(StorePlaces(machine_->folders.data), storeServices());
}

Expected<StoreView> Services::viewStore() {
    return quillon::viewStore(StorePlaces(machine_->folders.data), storeServices());
}

} // namespace quillon

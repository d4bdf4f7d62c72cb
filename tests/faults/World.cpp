#include "faults/World.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace quillon::testing {
namespace {

std::string temporaryFolder(const std::string& parent) {
    std::string path = parent + "/quillon-faults-XXXXXX";
    if (mkdtemp(path.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), "mkdtemp " + path);
    return path;
}

void writeTrashRecord(const std::string& trashed) {
    const std::filesystem::path path(trashed);
    const std::filesystem::path info = path.parent_path().parent_path() / "info";
    std::filesystem::create_directories(info);
    std::ofstream(info / (path.filename().string() + ".trashinfo"))
        << "[Trash Info]\nPath=/gone/" << path.filename().string()
        << "\nDeletionDate=2024-05-01T12:00:00\n";
}

std::uint64_t deviceOf(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_dev : 0;
}

void writeText(const char* path, const std::string& text) {
    std::ofstream(path) << text;
}

/// Mounts made from here on are seen by this process alone and vanish with it.
bool enterOwnMounts() {
    const std::string user = std::to_string(getuid());
    const std::string group = std::to_string(getgid());
    if (unshare(CLONE_NEWNS) != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        writeText("/proc/self/setgroups", "deny");
        writeText("/proc/self/uid_map", user + " " + user + " 1");
        writeText("/proc/self/gid_map", group + " " + group + " 1");
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace

std::string Places::path(const std::string& name) const {
    const std::size_t slash = name.find('/');
    const std::string place = name.substr(0, slash);
    const std::string& folder = place == "in" ? in : place == "out" ? out : trash;
    return slash == std::string::npos ? folder : folder + name.substr(slash);
}

Ground& Ground::instance() {
    static Ground ground;
    return ground;
}

Ground::Ground()
    : base_(temporaryFolder(std::filesystem::temp_directory_path())), near_(base_ + "/near") {
    std::filesystem::create_directory(near_);
    mayMount_ = enterOwnMounts();
    findFar();
}

Ground::~Ground() {
    for (const std::string& path : mounts_)
        umount2(path.c_str(), MNT_DETACH);
    if (far_ && !ownsMounts_)
        removeTree(*far_);
    removeTree(base_);
}

void Ground::findFar() {
    // Mounted on itself, so that its trash is there and not at the top of the machine's own disk.
    if (mayMount_ && mount(near_.c_str(), near_.c_str(), nullptr, MS_BIND, nullptr) == 0) {
        mounts_.push_back(near_);
        far_ = mountTmpfs("size=64m");
    }
    ownsMounts_ = far_.has_value();
    if (!far_ && access("/dev/shm", W_OK) == 0 && deviceOf("/dev/shm") != deviceOf(near_))
        far_ = temporaryFolder("/dev/shm");
    if (!ownsMounts_)
        std::cerr << "No file system can be mounted here: runs that need one of their own are "
                     "left out.\n";
}

std::optional<std::string> Ground::mountTmpfs(const std::string& options) {
    const std::string path = temporaryFolder(base_);
    if (!mayMount_ || mount("tmpfs", path.c_str(), "tmpfs", 0, options.c_str()) != 0)
        return std::nullopt;
    return mounts_.emplace_back(path);
}

std::optional<std::string> Ground::mountExt4(std::size_t megabytes) {
    const std::string path = temporaryFolder(base_);
    const std::string image = path + ".image";
    writeText(image.c_str(), "");
    std::filesystem::resize_file(image, megabytes << 20);
    const std::string command = "PATH=$PATH:/usr/sbin:/sbin; mkfs.ext4 -q -m 0 '" + image +
                                "' >/dev/null 2>&1 && mount -o loop '" + image + "' '" + path +
                                "' >/dev/null 2>&1";
    if (!mayMount_ || std::system(command.c_str()) != 0)
        return std::nullopt;
    return mounts_.emplace_back(path);
}

std::optional<std::string> missingFor(const Scenario& scenario) {
    const Ground& ground = Ground::instance();
    if (scenario.devices != Devices::same && !ground.far())
        return "there is no second file system on this machine";
    if (scenario.devices == Devices::inElsewhere && !ground.ownsMounts())
        return "no file system can be mounted on this machine";
    return std::nullopt;
}

DiskItem sampleFile(const std::string& text, std::size_t size) {
    std::string content;
    while (content.size() < size)
        content += text + " " + std::to_string(content.size()) + "\n";
    content.resize(size);
    return {.mode = S_IFREG | 0640,
            .content = content,
            .modified = 1'055'000'000'123'456'789,
            .attributes = {{"user.xdg.tags", "work,tax"},
                           {"user.xdg.origin.url", "https://example.org/" + text}}};
}

World::World(const Scenario& scenario) {
    const Ground& ground = Ground::instance();
    const std::string near = ground.near() + "/world";
    const std::string far = ground.far().value_or(near) + "/world";
    const bool inFar = scenario.devices == Devices::inElsewhere;
    const bool outFar = scenario.devices == Devices::outElsewhere;
    places = {.in = (inFar ? far : near) + "/in",
              .out = (outFar ? far : near) + "/out",
              .trash = near + "/trash",
              .data = ground.base() + "/data"};
    if (ground.ownsMounts())
        roots_ = {ground.near(), *ground.far()};
    else if (inFar || outFar)
        roots_ = {near, far};
    else
        roots_ = {near};
    fill(scenario);
}

World::World(const Scenario& scenario, Places between) : places(std::move(between)) {
    roots_ = {places.in, places.out, places.trash};
    fill(scenario);
}

World::~World() {
    removeTree(places.data);
    for (const std::string& root : roots_)
        for (const auto& entry : std::filesystem::directory_iterator(root))
            removeTree(entry.path());
}

void World::fill(const Scenario& scenario) {
    for (const std::string& folder : {places.in, places.out, places.trash})
        std::filesystem::create_directories(folder);
    for (const std::string& root : roots_)
        std::filesystem::create_directories(root);
    crossesDevices = scenario.machine != Machine::able || scenario.devices != Devices::same;
    wanted = places.path(scenario.operation.wanted);
    for (const std::string& folder : scenario.operation.madeFolders)
        madeFolders_.push_back(places.path(folder));

    writeItem(places.path("in/notes.txt"), sampleFile("notes", 300));
    writeItem(places.path("out/notes.txt"), sampleFile("other notes", 300));
    if (scenario.wantedIsTaken) {
        std::filesystem::create_directories(std::filesystem::path(wanted).parent_path());
        writeItem(wanted, sampleFile("somebody else's", 700));
    }
    for (const Subject& subject : scenario.operation.subjects) {
        const std::string path = places.path(subject.name);
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        if (subject.law != Law::appears)
            for (const auto& [name, item] : subject.tree)
                writeItem(path + name, item);
        if (subject.hasTrashRecord)
            writeTrashRecord(path);
        things.push_back({path, subject.law, subject.contentsOnly, {subject.tree}});
    }
    if (scenario.operation.prepare)
        scenario.operation.prepare(places);
    before = read();
    for (Thing& thing : things)
        if (thing.law != Law::appears)
            thing.versions = {treeAt(before, thing.path)};
}

std::string Thing::changingFile() const {
    return path + (versions.back().contains("/page.txt") ? "/page.txt" : "");
}

bool World::mayAppear(const std::string& folder) const {
    const std::string name = folder.substr(folder.rfind('/') + 1);
    return std::ranges::find(madeFolders_, folder) != madeFolders_.end() || name == "files" ||
           name == "info" || name.starts_with(".Trash");
}

void World::createFile(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (std::filesystem::exists(std::filesystem::symlink_status(path)))
        return;
    writeItem(path, sampleFile("came late", 900));
    before[path] = readDisk({places.in, places.out, places.trash}).at(path);
}

void World::createDanglingLink(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (symlink("nowhere", path.c_str()) == 0)
        before[path] = readDisk({places.in, places.out, places.trash}).at(path);
}

void World::overwrite(Thing& thing) {
    // Without waiting: a lease held on the file would make this wait for the stopped operation.
    const std::string path = thing.changingFile();
    const int file = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return;
    const std::string text = sampleFile("in its place", 40'000).content;
    const bool written = write(file, text.data(), text.size()) > 0;
    close(file);
    if (written)
        thing.versions.push_back(treeAt(read(), thing.path));
}

void World::replace(Thing& thing) {
    const std::string path = thing.changingFile();
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0)
        return;
    const std::string other = path.substr(0, path.rfind('/')) + "/saving";
    writeItem(other, sampleFile("saved anew", 5000));
    if (rename(other.c_str(), path.c_str()) == 0)
        thing.versions.push_back(treeAt(read(), thing.path));
}

} // namespace quillon::testing

#include "platform/WatchBench.h"
#include "platform/linux/FolderSnapshot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>

namespace quillon::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

struct WatchingRootsTest : ::testing::Test {
    WatchBench bench;
    ScratchFolder& scratch = bench.scratch;
    Told told;

    void rename(const std::string& from, const std::string& to) {
        fs::rename(scratch.path(from), scratch.path(to));
    }
    /// Whether the work is told of, and a new file afterwards in the folder too.
    void expectBack(const char* what, const std::function<void()>& work,
                    const std::string& folder = "home/me/in") {
        EXPECT_TRUE(bench.tells(told, work)) << what;
        const int number = ++files_;
        EXPECT_TRUE(bench.tells(told, [&] {
            scratch.write(folder + "/" + std::to_string(number), "");
        })) << what;
    }

private:
    int files_ = 0;
};

TEST_F(WatchingRootsTest, aFolderThatGoesAndComesBackIsWatchedAgain) {
    const auto watcher = bench.watch("home/me/in", told);
    expectBack("made later", [&] { scratch.makeFolder("home/me/in"); });
    expectBack("removed and made", [&] {
        fs::remove_all(scratch.path("home/me/in"));
        bench.settle();
        scratch.makeFolder("home/me/in");
    });
    expectBack("replaced", [&] {
        rename("home/me/in", "home/me/was");
        scratch.makeFolder("home/me/in");
    });
    EXPECT_FALSE(bench.tells(told, [&] { scratch.write("home/me/was/file", ""); }));
    expectBack("the way moved and back", [&] {
        rename("home", "away");
        bench.settle();
        rename("away", "home");
    });
    expectBack("the way replaced", [&] {
        rename("home/me", "home/you");
        bench.settle();
        scratch.makeFolder("home/me/in");
    });
    expectBack("a file and then a folder", [&] {
        fs::remove_all(scratch.path("home/me"));
        scratch.write("home/me", "");
        bench.settle();
        fs::remove(scratch.path("home/me"));
        scratch.makeFolder("home/me/in");
    });
    expectBack("a link to a folder", [&] {
        scratch.makeFolder("elsewhere/sub");
        fs::remove_all(scratch.path("home/me/in"));
        scratch.link("home/me/in", scratch.path("elsewhere"));
    });
    EXPECT_TRUE(bench.tells(told, [&] { scratch.write("elsewhere/sub/file", ""); }));
    for (int turn = 0; turn < 50; ++turn) {
        fs::remove_all(scratch.path("home"));
        scratch.makeFolder("home/me/in");
    }
    expectBack(
        "again and again", [&] { scratch.makeFolder("home/me/in/sub"); }, "home/me/in/sub");
}

TEST_F(WatchingRootsTest, aDriveThatIsUnpluggedAndPluggedInIsWatchedAgain) {
    const std::string drive = scratch.makeFolder("drive");
    const auto mount = [&] { return ::mount("none", drive.c_str(), "tmpfs", 0, "size=1m") == 0; };
    if (!mount())
        GTEST_SKIP() << "only root may mount";
    scratch.makeFolder("drive/in/sub");
    const auto watcher = bench.watch("drive/in", told);
    bench.settle();
    EXPECT_TRUE(bench.tells(told, [&] { EXPECT_EQ(::umount(drive.c_str()), 0); }));
    EXPECT_TRUE(mount());
    scratch.makeFolder("drive/in/sub");
    expectBack(
        "plugged in", [&] { scratch.write("drive/in/sub/file", ""); }, "drive/in");
    EXPECT_EQ(::umount(drive.c_str()), 0);
}

TEST_F(WatchingRootsTest, allThatFallsIntoALargeTreeIsToldOf) {
    for (int folder = 0; folder < 2000; ++folder)
        scratch.makeFolder("in/" + std::to_string(folder % 100) + "/" + std::to_string(folder));
    std::atomic<bool> isComplete = false;
    std::atomic<bool> isToldOfAll = false;
    InotifyWatching watching;
    const auto watcher = watching.watch(scratch.path("in"), {.changed =
                                                                 [&] {
                                                                     isToldOfAll =
                                                                         isComplete.load();
                                                                     told.handlers().changed();
                                                                 },
                                                             .warningChanged = {}});
    for (int file = 0; file < 100'000; ++file) {
        const std::string name =
            scratch.path("in/" + std::to_string(file % 100) + "/file" + std::to_string(file));
        ::close(::open(name.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    }
    isComplete = true;
    const auto quiet = std::chrono::steady_clock::now();
    EXPECT_TRUE(told.wait([&] { return isToldOfAll.load(); }));
    EXPECT_LT(std::chrono::steady_clock::now() - quiet, 5s);
}

TEST_F(WatchingRootsTest, whenMessagesAreLostAllFoldersCountAsChanged) {
    int limit = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> limit;
    scratch.makeFolder("in/old/deep");
    scratch.makeFolder("in/moved/deep");
    scratch.makeFolder("outside");
    scratch.makeFolder("calm");
    Told calm;
    const auto watcher = bench.watch("in", told);
    const auto other = bench.watch("calm", calm);
    std::atomic<bool> isHeld = false;
    std::atomic<bool> mayGoOn = false;
    scratch.makeFolder("gate");
    passTick();
    const auto gate = bench.watching().watch(scratch.path("gate"), {.changed =
                                                                        [&] {
                                                                            isHeld = true;
                                                                            isHeld.notify_all();
                                                                            mayGoOn.wait(false);
                                                                        },
                                                                    .warningChanged = {}});
    bench.settle();
    const int before = calm.changes();
    scratch.write("gate/file", "");
    isHeld.wait(false);
    for (int file = 0; file <= limit; ++file)
        fs::create_symlink("nowhere", scratch.path("in/" + std::to_string(file)));
    scratch.makeFolder("in/new/deep");
    rename("in/moved", "outside/moved");
    fs::remove_all(scratch.path("in/old"));
    scratch.makeFolder("in/old/deep");
    mayGoOn = true;
    mayGoOn.notify_all();
    EXPECT_TRUE(calm.waitForChange(before)) << "no message is about it";

    EXPECT_TRUE(bench.tells(told, [&] { scratch.write("in/new/deep/file", ""); }));
    EXPECT_TRUE(bench.tells(told, [&] { scratch.write("in/old/deep/file", ""); }));
    EXPECT_FALSE(bench.tells(told, [&] { scratch.write("outside/moved/deep/file", ""); }));
}

TEST(FolderSnapshot, changesWithWhatPeopleCanSee) {
    const ScratchFolder scratch;
    scratch.write("sub/a", "1");
    scratch.write(".hidden", "1");
    const auto snapshot = [&] { return folderSnapshot(scratch.root()); };
    std::uint64_t last = snapshot();
    const auto changes = [&](const std::function<void()>& work) {
        work();
        return std::exchange(last, snapshot()) != last;
    };
    EXPECT_FALSE(changes([] {}));
    EXPECT_FALSE(changes([&] { scratch.write(".hidden", "22"); }));
    EXPECT_FALSE(changes([&] { scratch.write(".more/file", ""); }));
    EXPECT_TRUE(changes([&] { scratch.write("sub/a", "22"); }));
    EXPECT_TRUE(changes([&] { scratch.write("sub/b", ""); }));
    EXPECT_TRUE(changes([&] { fs::rename(scratch.path("sub/b"), scratch.path("b")); }));
    EXPECT_TRUE(changes([&] { scratch.makeFolder("empty"); }));
    EXPECT_TRUE(changes(
        [&] { fs::last_write_time(scratch.path("b"), fs::file_time_type::clock::now() - 1h); }));
    EXPECT_EQ(folderSnapshot(scratch.path("nowhere")), 0U);
}

TEST_F(WatchingRootsTest, aNetworkDriveIsLookedAt) {
    InotifyWatching watching({.pollInterval = 20ms,
                              .maxWatches = {},
                              .remoteKind = [&](const std::string& path) -> std::optional<QString> {
                                  const bool isRemote = path == scratch.path("Music");
                                  return isRemote ? std::optional(
                                                        QStringLiteral("a network drive (NFS)"))
                                                  : std::nullopt;
                              }});
    scratch.makeFolder("Music/sub");
    const auto watcher = watching.watch(scratch.path("Music"), told.handlers());
    ASSERT_TRUE(told.wait([&] { return watcher->warning().has_value(); }));
    EXPECT_EQ(told.warnings(), 1);
    EXPECT_THAT(watcher->warning()->toStdString(),
                HasSubstr("“Music” is on a network drive (NFS)"));
    EXPECT_EQ(told.changes(), 0);
    scratch.write("Music/sub/file", "");
    EXPECT_TRUE(told.waitForChange(0));
}

TEST_F(WatchingRootsTest, moreFoldersThanMayBeWatchedAreLookedAt) {
    std::atomic<std::size_t> limit = 20;
    InotifyWatching watching(
        {.latency = 0ms, .pollInterval = 20ms, .maxWatches = [&] { return limit.load(); }});
    Told small;
    scratch.makeFolder("small");
    const auto other = watching.watch(scratch.path("small"), small.handlers());
    scratch.makeFolder("big");
    const auto watcher = watching.watch(scratch.path("big"), told.handlers());
    for (int folder = 0; folder < 30; ++folder)
        scratch.makeFolder("big/" + std::to_string(folder) + "/sub");
    ASSERT_TRUE(told.wait([&] { return watcher->warning().has_value(); }));
    EXPECT_THAT(watcher->warning()->toStdString(), HasSubstr("raise fs.inotify.max_user_watches"));
    EXPECT_FALSE(other->warning()) << "it is watched as before";
    int before = small.changes();
    scratch.write("small/file", "");
    EXPECT_TRUE(small.waitForChange(before));
    before = told.changes();
    scratch.write("big/29/sub/file", "");
    EXPECT_TRUE(told.waitForChange(before));

    limit = 1000;
    EXPECT_TRUE(told.wait([&] { return !watcher->warning(); }));
    before = told.changes();
    scratch.write("big/29/sub/other", "");
    EXPECT_TRUE(told.waitForChange(before));
}

TEST_F(WatchingRootsTest, aDriveThatNeverAnswersKeepsNothingElseWaiting) {
    const std::string drive = scratch.makeFolder("with/my drive");
    scratch.makeFolder("in");
    // One that a program provides which does nothing.
    Descriptor program(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
    const std::string options =
        "fd=" + std::to_string(program.get()) + ",rootmode=40000,user_id=0,group_id=0";
    if (!program.isOpen() || ::mount("none", drive.c_str(), "fuse", 0, options.c_str()) != 0)
        GTEST_SKIP() << "only root may mount";
    const auto began = std::chrono::steady_clock::now();
    {
        InotifyWatching watching({.latency = 0ms, .pollInterval = 20ms});
        const auto on = watching.watch(scratch.path("with/my drive/sub"), told.handlers());
        const auto around = watching.watch(scratch.path("with"), told.handlers());
        Told calm;
        const auto other = watching.watch(scratch.path("in"), calm.handlers());
        EXPECT_TRUE(told.wait([&] { return on->warning() && around->warning(); }));
        EXPECT_THAT(on->warning().value_or(QString()).toStdString(),
                    HasSubstr("is on a drive that a program provides (FUSE)"));
        EXPECT_THAT(around->warning().value_or(QString()).toStdString(),
                    HasSubstr("“with” holds a drive that a program provides (FUSE)"));
        scratch.write("in/file", "");
        EXPECT_TRUE(calm.waitForChange(0));
        EXPECT_FALSE(other->warning());
    }
    EXPECT_LT(std::chrono::steady_clock::now() - began, 10s);
    EXPECT_EQ(::umount2(drive.c_str(), MNT_DETACH), 0);
}

TEST_F(WatchingRootsTest, aQueueThatCouldNotBeHadIsAskedForAgain) {
    scratch.makeFolder("in");
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const int next = ::dup(0);
    ::close(next);
    const rlimit oneMore{rlim_t(next) + 1, before.rlim_max};
    InotifyWatching watching({.latency = 0ms, .pollInterval = 20ms});
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &oneMore), 0);
    const auto watcher = watching.watch(scratch.path("in"), told.handlers());
    EXPECT_TRUE(told.wait([&] { return watcher->warning().has_value(); }));
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_TRUE(told.wait([&] { return !watcher->warning(); }));
    const int changes = told.changes();
    scratch.write("in/file", "");
    EXPECT_TRUE(told.waitForChange(changes));
}

} // namespace
} // namespace quillon::testing

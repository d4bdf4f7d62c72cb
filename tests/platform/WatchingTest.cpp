#include "platform/WatchBench.h"
#include "platform/linux/ChangeCoalescer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <fcntl.h>
#include <future>

namespace quillon::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

TEST(ChangeCoalescer, deliversAtOnceAfterQuietAndThenAtIntervals) {
    ChangeCoalescer changes(600ms);
    const ChangeCoalescer::Moment start{};
    EXPECT_FALSE(changes.due());
    changes.note(start);
    EXPECT_TRUE(changes.take(start));
    EXPECT_FALSE(changes.take(start)) << "a batch is delivered once";

    changes.note(start + 10ms);
    changes.note(start + 590ms);
    EXPECT_EQ(changes.due(), start + 600ms);
    EXPECT_FALSE(changes.take(start + 599ms));
    EXPECT_TRUE(changes.take(start + 700ms));
    changes.note(start + 701ms);
    EXPECT_EQ(changes.due(), start + 1300ms) << "counted from the delivery";
    EXPECT_TRUE(changes.take(start + 1300ms));
    changes.note(start + 5s);
    EXPECT_TRUE(changes.take(start + 5s));
}

struct WatchingTest : ::testing::Test {
    WatchBench bench;
    ScratchFolder& scratch = bench.scratch;
    Told told;

    void rename(const std::string& from, const std::string& to) {
        fs::rename(scratch.path(from), scratch.path(to));
    }
    /// Whether a new file there is told of.
    bool seesFileIn(const std::string& folder, Told& whom) {
        const int number = ++files_;
        return bench.tells(whom, [&] { scratch.write(folder + "/" + std::to_string(number), ""); });
    }
    bool seesFileIn(const std::string& folder) { return seesFileIn(folder, told); }

private:
    int files_ = 0;
};

TEST_F(WatchingTest, tellsOfWhatPeopleCanSee) {
    scratch.write("in/old.txt", "old");
    scratch.write("in/.hidden", "");
    scratch.write("in/.folder/file", "");
    scratch.write("in/sub/deep/file", "");
    scratch.write("outside/file", "");
    scratch.link("in/link", scratch.path("outside"));
    const auto watcher = bench.watch("in", told);
    const int writing = ::open(scratch.path("in/old.txt").c_str(), O_WRONLY | O_CLOEXEC);

    struct Case {
        const char* what;
        std::function<void()> work;
        bool isTold = true;
    };
    const Case cases[] = {
        {"a new file", [&] { scratch.write("in/new.txt", "n"); }},
        {"a file written anew", [&] { scratch.write("in/old.txt", "new"); }},
        {"a rename", [&] { rename("in/new.txt", "in/newer.txt"); }},
        {"permissions", [&] { ::chmod(scratch.path("in/old.txt").c_str(), 0600); }},
        {"a removal", [&] { fs::remove(scratch.path("in/newer.txt")); }},
        {"a new link", [&] { scratch.link("in/other", "nowhere"); }},
        {"something far below", [&] { scratch.write("in/sub/deep/file", "again"); }},
        {"something shown", [&] { rename("in/.hidden", "in/shown"); }},
        {"something hidden", [&] { rename("in/shown", "in/.hidden"); }},
        {"the folder's permissions", [&] { ::chmod(scratch.path("in").c_str(), 0700); }},
        {"a hidden folder shown", [&] { rename("in/.folder", "in/folder"); }},
        {"a file in it", [&] { scratch.write("in/folder/file", "again"); }},
        {"a folder hidden", [&] { rename("in/folder", "in/.folder"); }},

        {"a hidden file", [&] { scratch.write("in/.hidden", "again"); }, false},
        {"a file in a hidden folder", [&] { scratch.write("in/.folder/file", "3"); }, false},
        {"a file behind a link", [&] { scratch.write("outside/file", "again"); }, false},
        {"reading", [&] { (void)scratch.read("in/old.txt"); }, false},
        {"a file that is still written", [&] { EXPECT_EQ(::write(writing, "x", 1), 1); }, false},
        {"its end", [&] { ::close(writing); }},
    };
    for (const Case& each : cases)
        EXPECT_EQ(bench.tells(told, each.work), each.isTold) << each.what;
}

TEST_F(WatchingTest, tellsOfNothingThatWasThereBefore) {
    scratch.write("in/sub/file", "");
    passTick();
    const auto watcher = bench.watch("in", told);
    bench.settle();
    EXPECT_EQ(told.changes(), 0);
}

TEST_F(WatchingTest, missesNothingBetweenTheCallAndTheFirstWatch) {
    for (int folder = 0; folder < 300; ++folder)
        scratch.makeFolder("in/" + std::to_string(folder));
    passTick();
    const auto watcher = bench.watch("in", told);
    scratch.write("in/299/file", "");
    EXPECT_TRUE(told.waitForChange(0));
}

TEST_F(WatchingTest, tenFilesAreOneBatch) {
    scratch.makeFolder("in");
    passTick();
    InotifyWatching watching({.latency = 10min});
    const auto watcher = watching.watch(scratch.path("in"), told.handlers());
    Told each;
    const auto other = watching.watch(scratch.path("in"), each.handlers());
    for (int file = 0; file < 10; ++file)
        scratch.write("in/" + std::to_string(file), "");
    EXPECT_TRUE(each.waitForChange(0));
    EXPECT_TRUE(told.waitForChange(0));
    EXPECT_EQ(told.changes(), 1) << "at once, and the rest later";
}

TEST_F(WatchingTest, foldersThatAppearInAStormAreAllWatched) {
    scratch.makeFolder("in");
    std::atomic<std::size_t> seen = 0;
    InotifyWatching watching({.latency = 50ms});
    const auto watcher = watching.watch(
        scratch.path("in"),
        {.changed =
             [&] {
                 std::error_code gone;
                 seen = 0;
                 for (fs::recursive_directory_iterator at(scratch.path("in"), gone), end; at != end;
                      at.increment(gone))
                     seen += at->path().filename() == "file";
                 told.handlers().changed();
             },
         .warningChanged = {}});
    const auto checked = bench.watch("in", told);
    bench.settle();
    const auto deepest = [](int tree) { return "in/" + std::to_string(tree) + "/a/b/c/d/e/f/g/h"; };
    std::vector<std::jthread> makers;
    for (int maker = 0; maker < 2; ++maker) {
        makers.emplace_back([&, maker] {
            for (int tree = maker; tree < 100; tree += 2)
                scratch.write(deepest(tree) + "/file", "");
        });
    }
    makers.clear();
    EXPECT_TRUE(told.wait([&] { return seen == 100; }));
    for (const int tree : {0, 1, 98, 99})
        EXPECT_TRUE(seesFileIn(deepest(tree))) << tree;
}

TEST_F(WatchingTest, followsFoldersThatMove) {
    scratch.makeFolder("in/a/deep");
    scratch.makeFolder("in/b");
    scratch.makeFolder("outside/c/deep");
    const auto watcher = bench.watch("in", told);

    rename("in/a", "in/b/a");
    EXPECT_TRUE(seesFileIn("in/b/a/deep"));
    rename("outside/c", "in/c");
    EXPECT_TRUE(seesFileIn("in/c/deep"));
    rename("in/b", "outside/b");
    EXPECT_FALSE(seesFileIn("outside/b/a/deep"));
    scratch.makeFolder("in/b/a/deep"); // of the same names
    EXPECT_TRUE(seesFileIn("in/b/a/deep"));
    EXPECT_FALSE(seesFileIn("outside/b/a/deep"));

    for (int turn = 0; turn < 100; ++turn) { // faster than one can look
        rename("in/b", "in/x");
        rename("in/c", "in/b");
        rename("in/x", "in/c");
        rename("in/c", turn % 2 == 0 ? "in/b/c" : "in/y");
        rename(turn % 2 == 0 ? "in/b/c" : "in/y", "in/c");
    }
    EXPECT_TRUE(seesFileIn("in/b/a/deep"));
    EXPECT_TRUE(seesFileIn("in/c/deep"));
    fs::remove_all(scratch.path("in/b"));
    EXPECT_TRUE(seesFileIn("in/b/a/deep")) << "made anew";
    EXPECT_TRUE(seesFileIn("in/b/a/deep"));
}

TEST_F(WatchingTest, foldersThatBecomeReadableAreWatched) {
    const WithoutPrivileges user;
    WatchBench own;
    own.scratch.makeFolder("in/closed/deep");
    own.scratch.makeFolder("shut/in");
    for (const char* const name : {"in/closed", "shut"})
        fs::permissions(own.scratch.path(name), fs::perms::none);
    Told inner;
    const auto watcher = own.watch("in", told);
    const auto within = own.watch("shut/in", inner);
    own.settle();
    for (const char* const name : {"in/closed", "shut"})
        fs::permissions(own.scratch.path(name), fs::perms::owner_all);
    EXPECT_TRUE(own.tells(told, [&] { own.scratch.write("in/closed/deep/file", ""); }));
    EXPECT_TRUE(own.tells(inner, [&] { own.scratch.write("shut/in/file", ""); }));
}

TEST_F(WatchingTest, watchedFoldersMayHoldEachOther) {
    scratch.makeFolder("in/sub/.hidden/deep");
    Told inner;
    Told hidden;
    Told same;
    const auto watcher = bench.watch("in", told);
    const auto within = bench.watch("in/sub", inner);
    const auto below = bench.watch("in/sub/.hidden", hidden);
    auto again = bench.watch("in/", same);
    EXPECT_TRUE(seesFileIn("in/sub"));
    EXPECT_EQ(std::min({inner.changes(), same.changes()}), told.changes());
    EXPECT_TRUE(seesFileIn("in/sub/.hidden/deep", hidden));

    again.reset();
    EXPECT_TRUE(seesFileIn("in/sub"));
    EXPECT_FALSE(seesFileIn("in/sub", same));
    rename("in/sub", "in/moved");
    EXPECT_TRUE(seesFileIn("in/moved"));
    EXPECT_FALSE(seesFileIn("in/moved", inner));
    rename("in/moved", "in/sub");
    EXPECT_TRUE(seesFileIn("in/sub", inner));
}

TEST_F(WatchingTest, aHandlerMayEndItsWatcherAndTheEndWaitsForAHandler) {
    scratch.makeFolder("in");
    passTick();
    InotifyWatching watching;
    std::unique_ptr<FolderWatcher> self;
    std::promise<void> isMade;
    std::promise<void> isEnded;
    self = watching.watch(scratch.path("in"), {.changed =
                                                   [&] {
                                                       isMade.get_future().wait();
                                                       self.reset();
                                                       isEnded.set_value();
                                                   },
                                               .warningChanged = {}});
    isMade.set_value();
    std::atomic<bool> isCalled = false;
    std::atomic<bool> isDone = false;
    auto other = watching.watch(scratch.path("in"), {.changed =
                                                         [&] {
                                                             isCalled = true;
                                                             isCalled.notify_all();
                                                             std::this_thread::sleep_for(20ms);
                                                             isDone = true;
                                                         },
                                                     .warningChanged = {}});
    scratch.write("in/file", "");
    isEnded.get_future().wait();
    isCalled.wait(false);
    other.reset();
    EXPECT_TRUE(isDone);
}

} // namespace
} // namespace quillon::testing

#include "platform/linux/LinuxStorage.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace quillon {

using testing::ScratchFolder;

namespace {

using Tree = std::map<std::string, std::string>;

/// Lets no file grow past some bytes for as long as it lives.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes) {
        (void)std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &before_), 0);
        const rlimit few{bytes, before_.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &few), 0);
    }
    ~SmallFiles() { EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &before_), 0); }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    rlimit before_ = {};
};

} // namespace

TEST(StorageTest, readsRegularFilesOnly) {
    const ScratchFolder folder;
    const LinuxStorage storage;
    const std::string large(200'000, 'x');
    folder.write("large", large);
    folder.link("link", "large");
    folder.write("empty", "");
    EXPECT_EQ(storage.readWhole(folder.path("link"), large.size()),
              QByteArray::fromStdString(large));
    EXPECT_EQ(storage.readWhole(folder.path("empty"), 0), QByteArray());
    const std::pair<std::string, Error> rows[] = {
        {folder.path("large"),
         {ErrorKind::invalid, QStringLiteral("it is larger than 199999 bytes")}},
        {folder.makePipe("pipe"),
         {ErrorKind::wrongType, QStringLiteral("it is not a regular file")}},
        {folder.root(), {ErrorKind::wrongType, QStringLiteral("it is a folder, not a file")}},
        {"/dev/null", {ErrorKind::wrongType, QStringLiteral("it is not a regular file")}},
        {folder.path("none"), {ErrorKind::notFound, QStringLiteral("No such file or directory")}},
    };
    for (const auto& [path, error] : rows)
        EXPECT_EQ(storage.readWhole(path, large.size() - 1).error(), error) << path;
}

TEST(StorageTest, replacesAFileAsOneStep) {
    const ScratchFolder folder;
    LinuxStorage storage;
    folder.write("real/state", "old");
    folder.link("state", "real/state");
    ASSERT_TRUE(storage.writeDurably(folder.path("state"), "new"));
    ASSERT_TRUE(storage.writeDurably(folder.path("fresh"), "1"));
    struct stat found = {};
    ASSERT_EQ(::stat(folder.path("fresh").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777, 0600U);
    {
        const SmallFiles limit(2);
        EXPECT_FALSE(storage.writeDurably(folder.path("state"), "newer"));
    }
    EXPECT_FALSE(storage.writeDurably(folder.path("none/state"), "1"));
    EXPECT_FALSE(storage.writeDurably(folder.path("real"), "1"));
    EXPECT_EQ(
        folder.everything(),
        (Tree{{"real", "/"}, {"real/state", "new"}, {"state", "-> real/state"}, {"fresh", "1"}}));
}

TEST(StorageTest, writesANewFileAndReplacesNone) {
    const ScratchFolder folder;
    LinuxStorage storage;
    folder.write("taken", "old");
    folder.link("nowhere", "none");
    EXPECT_TRUE(storage.writeNewDurably(folder.path("fresh"), "1"));
    for (const char* name : {"taken", "nowhere", "."})
        EXPECT_EQ(storage.writeNewDurably(folder.path(name), "2").error().kind,
                  ErrorKind::alreadyExists)
            << name;
    EXPECT_EQ(folder.everything(),
              (Tree{{"fresh", "1"}, {"nowhere", "-> none"}, {"taken", "old"}}));
}

TEST(StorageTest, appendsWholeOrNotAtAll) {
    const ScratchFolder folder;
    LinuxStorage storage;
    const std::string path = folder.write("journal", "one\n");
    const Expected<std::unique_ptr<AppendFile>> file = storage.openAppend(path);
    ASSERT_TRUE(file);
    ASSERT_TRUE((*file)->append("two\n"));
    {
        const SmallFiles limit(10);
        EXPECT_FALSE((*file)->append("three\n"));
    }
    EXPECT_EQ(folder.read("journal"), "one\ntwo\n");
    ASSERT_TRUE((*file)->append("four\n"));
    ASSERT_TRUE((*file)->sync());
    EXPECT_EQ(folder.read("journal"), "one\ntwo\nfour\n");
    ASSERT_TRUE((*file)->clear());
    ASSERT_TRUE((*file)->append("five\n"));
    EXPECT_EQ(folder.read("journal"), "five\n");
    EXPECT_EQ(storage.openAppend(folder.makePipe("pipe")).error().kind, ErrorKind::io);
}

TEST(StorageTest, locksOnce) {
    const ScratchFolder folder;
    LinuxStorage storage;
    Expected<std::unique_ptr<FileLock>> first = storage.tryLock(folder.path("lock"));
    ASSERT_TRUE(first);
    EXPECT_EQ(storage.tryLock(folder.path("lock")).error().kind, ErrorKind::alreadyExists);
    first->reset();
    EXPECT_TRUE(storage.tryLock(folder.path("lock")));
    EXPECT_EQ(storage.tryLock(folder.path("none/lock")).error().kind, ErrorKind::notFound);
}

TEST(StorageTest, keepsAsideAndRemoves) {
    const ScratchFolder folder;
    LinuxStorage storage;
    folder.write("store.bad", "older");
    const std::string path = folder.write("store.json", "bad");
    EXPECT_EQ(storage.keepAside(path, folder.path("store.bad")), folder.path("store 2.bad"));
    EXPECT_EQ(storage.keepAside(path, folder.path("store.bad")).error().kind, ErrorKind::notFound);
    EXPECT_TRUE(storage.remove(folder.path("store.bad")));
    EXPECT_TRUE(storage.remove(folder.path("store.bad")));
    EXPECT_EQ(folder.everything(), (Tree{{"store 2.bad", "bad"}}));
}

TEST(StorageTest, clearsAwayTheLeftoversOfOneTag) {
    const ScratchFolder folder;
    LinuxStorage storage;
    folder.write(".quillon-a1-1.part", "half");
    folder.write(".quillon-a1-2.unpack/x/y", "1");
    folder.write(".quillon-a1-30.part/closed/in", "1");
    ASSERT_EQ(::chmod(folder.path(".quillon-a1-30.part/closed").c_str(), 0500), 0);
    folder.write("outside", "1");
    folder.link(".quillon-a1-2.unpack/x/link", folder.root());
    for (const char* name : {".quillon-a12-1.part", ".quillon-b-1.part", ".quillon-a1-x.part",
                             ".quillon-a1-1.txt", ".quillon-a1-.part", "quillon-a1-1.part"})
        folder.write(name, "1");
    EXPECT_EQ(storage.removeTemporaries(folder.root(), "a1"), 3U);
    EXPECT_EQ(storage.removeTemporaries(folder.root(), ""), 0U);
    EXPECT_EQ(storage.removeTemporaries(folder.path("none"), "a1"), 0U);
    EXPECT_EQ(folder.everything().size(), 7U);
}

} // namespace quillon

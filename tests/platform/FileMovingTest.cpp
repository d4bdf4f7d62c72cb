#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/StagedCopy.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <fcntl.h>
#include <set>
#include <sys/xattr.h>

namespace quillon {

using testing::ScratchFolder;
using testing::WithoutPrivileges;

namespace {

using Tree = std::map<std::string, std::string>;

/// Two folders to move between: on one device, or on two.
class Moving : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        if (GetParam() && !other_)
            GTEST_SKIP() << "this machine has no second device to write to";
    }

    const ScratchFolder& from() const { return here_; }
    const ScratchFolder& to() const { return GetParam() ? *other_ : there_; }

    LinuxFileSystem files{"moving"};

private:
    ScratchFolder here_;
    ScratchFolder there_;
    std::unique_ptr<ScratchFolder> other_ = ScratchFolder::onOtherDevice();
};

INSTANTIATE_TEST_SUITE_P(Devices, Moving, ::testing::Bool(),
                         [](const auto& devices) { return devices.param ? "Two" : "One"; });

std::string attribute(const std::string& path, const char* name) {
    std::array<char, 256> value{};
    const ssize_t size = ::lgetxattr(path.c_str(), name, value.data(), value.size());
    return size < 0 ? "none" : std::string(value.data(), static_cast<std::size_t>(size));
}

struct stat statusOfPath(const std::string& path) {
    struct stat found = {};
    EXPECT_EQ(::lstat(path.c_str(), &found), 0) << path;
    return found;
}

void dress(const std::string& path) {
    ASSERT_EQ(::lsetxattr(path.c_str(), "user.xdg.tags", "Red", 3, 0), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    const std::array<timespec, 2> times{timespec{1'000'000'000, 123'456'789},
                                        timespec{1'500'000'000, 987'654'321}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
}

void expectDressed(const std::string& path) {
    const struct stat found = statusOfPath(path);
    EXPECT_EQ(attribute(path, "user.xdg.tags"), "Red");
    EXPECT_EQ(found.st_mode & 07777, 0640U);
    EXPECT_EQ(found.st_atim.tv_sec, 1'000'000'000);
    EXPECT_EQ(found.st_mtim.tv_sec, 1'500'000'000);
    EXPECT_EQ(found.st_mtim.tv_nsec, 987'654'321);
}

} // namespace

TEST_P(Moving, takesTheFirstFreeName) {
    to().write("a.txt", "old");
    to().link("a 2.txt", "nowhere");
    to().makeFolder("a 3.txt");
    const Expected<Placement> moved = files.move(from().write("a.txt", "new"), to().path("a.txt"));
    ASSERT_TRUE(moved) << moved.error().message.toStdString();
    EXPECT_EQ(moved->path, to().path("a 4.txt"));
    EXPECT_TRUE(moved->done);
    EXPECT_TRUE(moved->losses.isEmpty());
    EXPECT_EQ(from().everything(), Tree{});
    EXPECT_EQ(
        to().everything(),
        (Tree{{"a.txt", "old"}, {"a 2.txt", "-> nowhere"}, {"a 3.txt", "/"}, {"a 4.txt", "new"}}));
}

TEST_P(Moving, keepsWhatSurroundsTheContents) {
    const std::string source = from().write("a.txt", "x");
    ASSERT_EQ(::truncate(source.c_str(), 8 << 20), 0); // a byte and a long hole
    dress(source);
    const Expected<Placement> copied = files.copy(source, to().path("copy.txt"));
    ASSERT_TRUE(copied) << copied.error().message.toStdString();
    expectDressed(copied->path);
    expectDressed(source);
    const Expected<Placement> moved = files.move(source, to().path("a.txt"));
    ASSERT_TRUE(moved) << moved.error().message.toStdString();
    expectDressed(moved->path);
    for (const char* name : {"a.txt", "copy.txt"}) {
        EXPECT_EQ(to().read(name), "x" + std::string((8 << 20) - 1, '\0'));
        EXPECT_LT(statusOfPath(to().path(name)).st_blocks, 1000);
    }
}

TEST_P(Moving, keepsAFoldersInsides) {
    from().write("f/a/one.txt", "1");
    from().write("f/a-b.txt", "2");
    from().write("f/.hidden", "3");
    from().makeFolder("f/empty");
    from().link("f/link", "a/one.txt");
    std::filesystem::create_hard_link(from().path("f/a-b.txt"), from().path("f/z.txt"));
    const Tree before = from().everything();
    dress(from().path("f/a/one.txt"));
    ASSERT_EQ(::chmod(from().path("f/a").c_str(), 0750), 0);
    const struct timespec folderTime = statusOfPath(from().path("f/a")).st_mtim;

    const Expected<Placement> moved = files.move(from().path("f"), to().path("f"));
    ASSERT_TRUE(moved) << moved.error().message.toStdString();
    EXPECT_EQ(from().everything(), Tree{});
    expectDressed(to().path("f/a/one.txt"));
    EXPECT_EQ(to().everything(), before);
    EXPECT_EQ(statusOfPath(to().path("f/a")).st_mode & 07777, 0750U);
    EXPECT_EQ(statusOfPath(to().path("f/a")).st_mtim.tv_nsec, folderTime.tv_nsec);
}

TEST_P(Moving, handlesLinksAsLinks) {
    from().write("target.txt", "contents");
    from().link("good", "target.txt");
    from().link("dangling", "/nowhere/at all");
    for (const std::string name : {"good", "dangling"}) {
        ASSERT_TRUE(files.copy(from().path(name), to().path("copy of " + name)));
        ASSERT_TRUE(files.move(from().path(name), to().path(name)));
    }
    EXPECT_EQ(from().everything(), (Tree{{"target.txt", "contents"}}));
    EXPECT_EQ(to().everything(), (Tree{{"good", "-> target.txt"},
                                       {"copy of good", "-> target.txt"},
                                       {"dangling", "-> /nowhere/at all"},
                                       {"copy of dangling", "-> /nowhere/at all"}}));
}

TEST_P(Moving, leavesPipesAlone) {
    from().makePipe("pipe");
    from().write("f/a.txt", "1");
    from().makePipe("f/pipe");
    const Tree before = from().everything();
    EXPECT_EQ(files.move(from().path("pipe"), to().path("pipe")).error().kind,
              ErrorKind::wrongType);
    EXPECT_EQ(files.copy(from().path("pipe"), to().path("pipe")).error().kind,
              ErrorKind::wrongType);
    EXPECT_EQ(files.copy(from().path("f"), to().path("f")).error().kind, ErrorKind::wrongType);
    EXPECT_EQ(from().everything(), before);
    EXPECT_EQ(to().everything(), Tree{});
}

TEST_P(Moving, saysWhyItCannot) {
    const std::string file = from().write("a.txt", "1");
    EXPECT_EQ(files.move(from().path("b.txt"), to().path("b.txt")).error().kind,
              ErrorKind::notFound);
    EXPECT_EQ(files.move(file, to().path("missing/a.txt")).error().kind, ErrorKind::notFound);
    const std::string inFile = to().write("b.txt", "2") + "/a.txt";
    EXPECT_EQ(files.move(file, inFile).error().kind, ErrorKind::wrongType);
    EXPECT_EQ(files.move(file, to().path(std::string(300, 'x'))).error().message,
              QStringLiteral("File name too long"));
    EXPECT_EQ(from().everything(), (Tree{{"a.txt", "1"}}));
    EXPECT_EQ(to().everything(), (Tree{{"b.txt", "2"}}));
}

TEST_P(Moving, staysWhereTheSystemForbidsItToLeave) {
    const std::string file = from().write("locked/a.txt", "1");
    ASSERT_EQ(::chmod(from().path("locked").c_str(), 0555), 0);
    ASSERT_EQ(::chmod(from().root().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(to().root().c_str(), 0777), 0);
    {
        const WithoutPrivileges asNobody;
        const Expected<Placement> moved = files.move(file, to().path("a.txt"));
        ASSERT_FALSE(moved);
        EXPECT_EQ(moved.error().kind, ErrorKind::permissionDenied);
        const Expected<Placement> copied = files.copy(file, to().path("copy.txt"));
        ASSERT_TRUE(copied) << copied.error().message.toStdString();
    }
    EXPECT_EQ(from().read("locked/a.txt"), "1");
    EXPECT_EQ(to().everything(), (Tree{{"copy.txt", "1"}}));
}

TEST_P(Moving, copyFindsWhatIsThereAlready) {
    from().write("a.txt", "same");
    from().link("link", "t");
    from().write("f/a", "1");
    to().write("a.txt", "else");
    to().write("a 2.txt", "same");
    to().link("link", "t");
    to().write("f/a", "2");
    to().write("f 2/a", "1");
    const Tree before = to().everything();
    const std::pair<const char*, const char*> rows[] = {
        {"a.txt", "a 2.txt"}, {"link", "link"}, {"f", "f 2"}};
    for (const auto& [name, found] : rows) {
        const Expected<Placement> copied = files.copy(from().path(name), to().path(name));
        ASSERT_TRUE(copied) << copied.error().message.toStdString();
        EXPECT_FALSE(copied->done);
        EXPECT_EQ(copied->path, to().path(found));
    }
    EXPECT_EQ(to().everything(), before);
    from().write("a.txt", "diff");
    EXPECT_EQ(files.copy(from().path("a.txt"), to().path("a.txt"))->path, to().path("a 3.txt"));
}

TEST_P(Moving, fillsTheGapAmongManyNumbers) {
    const auto moveOne = [this] {
        return files.move(from().write("a.txt", "x"), to().path("a.txt"))->path;
    };
    for (int count = 1; count <= 30; ++count)
        (void)moveOne();
    EXPECT_EQ(moveOne(), to().path("a 31.txt"));
    ASSERT_EQ(::unlink(to().path("a 5.txt").c_str()), 0);
    EXPECT_EQ(moveOne(), to().path("a 5.txt"));
    EXPECT_EQ(moveOne(), to().path("a 32.txt"));
}

TEST_P(Moving, keepsNamesWithinTheirLimit) {
    const std::string name = std::string(250, 'x') + ".txt";
    to().write(name, "1");
    const Expected<Placement> moved = files.move(from().write(name, "2"), to().path(name));
    ASSERT_TRUE(moved) << moved.error().message.toStdString();
    EXPECT_EQ(moved->path, to().path(std::string(249, 'x') + " 2.txt"));
}

TEST(MovingWithin, isNothingToDoForTheSameFile) {
    const ScratchFolder folder;
    LinuxFileSystem files("within");
    const std::string file = folder.write("a.txt", "1");
    folder.write("in/taken 2.txt", "2");
    folder.write("in/taken.txt", "3");
    std::filesystem::create_hard_link(file, folder.path("b.txt"));
    const std::pair<std::string, std::string> rows[] = {
        {"a.txt", "a.txt"}, {"a.txt", "b.txt"}, {"in/taken 2.txt", "in/taken.txt"}};
    const Tree before = folder.everything();
    for (const auto& [source, wanted] : rows) {
        const Expected<Placement> moved = files.move(folder.path(source), folder.path(wanted));
        ASSERT_TRUE(moved);
        EXPECT_FALSE(moved->done) << source;
    }
    EXPECT_EQ(folder.everything(), before);
}

TEST(MovingWithin, neverPutsAFolderIntoItself) {
    const ScratchFolder folder;
    LinuxFileSystem files("within");
    folder.makeFolder("f/deep");
    folder.link("side", "f/deep");
    const Tree before = folder.everything();
    for (const std::string wanted : {"f/f", "f/deep/f", "side/f"}) {
        const Error moved = files.move(folder.path("f"), folder.path(wanted)).error();
        EXPECT_EQ(moved.message, QStringLiteral("a folder can’t be moved into itself"));
        EXPECT_EQ(files.copy(folder.path("f"), folder.path(wanted)).error().kind,
                  ErrorKind::invalid);
    }
    EXPECT_EQ(folder.everything(), before);
}

/// The last steps of a move between devices, with something happening in between.
class StagedMove : public ::testing::Test {
protected:
    void SetUp() override {
        from_ = ::open(folder.makeFolder("from").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        to_ = ::open(folder.makeFolder("to").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        folder.write("from/a.txt", "1");
    }
    void TearDown() override {
        ::close(from_);
        ::close(to_);
    }
    ScratchFolder folder;
    int from_ = -1;
    int to_ = -1;
};

TEST_F(StagedMove, leavesASourceThatChangedAfterTheCopy) {
    StagedCopy copy(from_, "a.txt", to_, ".part");
    ASSERT_TRUE(copy.make(true));
    ASSERT_TRUE(copy.publish("a.txt"));
    folder.write("from/a.txt", "2");
    EXPECT_EQ(copy.removeSource().error().kind, ErrorKind::changed);
    EXPECT_EQ(folder.read("from/a.txt"), "2");
    EXPECT_EQ(folder.read("to/a.txt"), "1");
}

TEST_F(StagedMove, takesTheCopyBackWhenTheSourceMustStay) {
    ASSERT_EQ(::chmod(folder.root().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(folder.path("to").c_str(), 0777), 0);
    ASSERT_EQ(::chmod(folder.path("from").c_str(), 0555), 0);
    const WithoutPrivileges asNobody;
    StagedCopy copy(from_, "a.txt", to_, ".part");
    ASSERT_TRUE(copy.make(false));
    ASSERT_TRUE(copy.publish("a.txt"));
    EXPECT_EQ(copy.removeSource().error().kind, ErrorKind::permissionDenied);
    EXPECT_EQ(folder.read("from/a.txt"), "1");
    EXPECT_FALSE(folder.has("to/a.txt"));
}

TEST_F(StagedMove, leavesNothingHiddenBehind) {
    folder.write("to/.part", "somebody else's");
    {
        StagedCopy taken(from_, "a.txt", to_, ".part");
        EXPECT_EQ(taken.make(true).error().kind, ErrorKind::alreadyExists);
        StagedCopy abandoned(from_, "a.txt", to_, ".part2");
        ASSERT_TRUE(abandoned.make(true));
    }
    EXPECT_EQ(
        folder.everything(),
        (Tree{{"from", "/"}, {"from/a.txt", "1"}, {"to", "/"}, {"to/.part", "somebody else's"}}));
}

RC_GTEST_PROP(MovingWithin, anySequenceOfMovesKeepsEveryContents, ()) {
    const ScratchFolder here;
    const std::unique_ptr<ScratchFolder> other = ScratchFolder::onOtherDevice();
    LinuxFileSystem files("sequence");
    std::vector<std::string> places{here.makeFolder("p"), here.makeFolder("q")};
    if (other)
        places.push_back(other->makeFolder("r"));
    std::multiset<std::string> before;
    for (int number = 0; number < 6; ++number) {
        here.write("p/" + std::to_string(number) + ".txt", "contents " + std::to_string(number));
        before.insert("contents " + std::to_string(number));
    }
    const int steps = *rc::gen::inRange(1, 25);
    for (int step = 0; step < steps; ++step) {
        std::vector<std::string> all;
        for (const std::string& place : places)
            for (const auto& entry : std::filesystem::directory_iterator(place))
                all.push_back(entry.path());
        const std::string source = *rc::gen::elementOf(all);
        const std::string wanted = joinPath(*rc::gen::elementOf(places),
                                            *rc::gen::element<std::string>("a.txt", "b", "é.x"));
        RC_ASSERT(files.move(source, wanted).has_value());
    }
    std::multiset<std::string> after;
    for (const ScratchFolder* folder : {&here, static_cast<const ScratchFolder*>(other.get())})
        if (folder != nullptr)
            for (const auto& [name, contents] : folder->everything())
                if (contents != "/")
                    after.insert(contents);
    RC_ASSERT(after == before);
}

} // namespace quillon

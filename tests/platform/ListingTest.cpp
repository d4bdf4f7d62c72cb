#include "platform/linux/LinuxFileSystem.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>

namespace quillon {

using testing::ScratchFolder;
using testing::WithoutPrivileges;

namespace {

std::vector<std::string> paths(const Expected<Listing>& listing) {
    std::vector<std::string> result;
    EXPECT_TRUE(listing) << (listing ? "" : listing.error().message.toStdString());
    if (listing)
        for (const ListedFile& file : listing->files)
            result.push_back(file.path);
    return result;
}

bool isApp(std::string_view name) {
    return name.ends_with(".app");
}

using Paths = std::vector<std::string>;

} // namespace

TEST(Listing, tellsWhatIsThereInTheOrderOfBytes) {
    const ScratchFolder folder;
    folder.write("b/z.txt", "1");
    folder.write("b/a/deep.txt", "12");
    folder.write("b-c.txt", "123");
    folder.write("B.txt", "");
    folder.write(".hidden/x", "1");
    folder.write("b/.hidden", "1");
    folder.write("Tool.app/inside.txt", "1");
    folder.write("é.txt", "1");
    folder.write("bad\xFFname", "1");
    folder.write("bad\xFF folder/inside", "1");
    folder.makePipe("pipe");
    folder.link("link to b", "b");
    folder.link("dangling", "nowhere");
    const LinuxFileSystem files("list");

    const Expected<Listing> flat = files.list(folder.root(), {});
    EXPECT_EQ(paths(flat),
              (Paths{"B.txt", "Tool.app", "b", "b-c.txt", "dangling", "link to b", "é.txt"}));
    EXPECT_EQ(flat->skippedNames, 2U);

    const Expected<Listing> deep =
        files.list(folder.root(), {.recursive = true, .isPackage = isApp});
    EXPECT_EQ(paths(deep), (Paths{"B.txt", "b-c.txt", "b/a/deep.txt", "b/z.txt", "dangling",
                                  "link to b", "é.txt"}));
    EXPECT_EQ(deep->skippedNames, 2U);
    EXPECT_EQ(deep->files[2].status.size, 2U);
    EXPECT_EQ(deep->files[5].status.type, FileType::symbolicLink);

    EXPECT_EQ(paths(files.list(folder.path("link to b"), {})), (Paths{"a", "z.txt"}));
}

TEST(Listing, agreesWithASortOfWholePaths) {
    const ScratchFolder folder;
    Paths expected;
    for (int number = 0; number < 300; ++number) {
        const std::string name = "common start " + std::to_string(number * 7919 % 1000) +
                                 (number % 3 == 0 ? "/in.txt" : "");
        folder.write(name, "");
        expected.push_back(name);
    }
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(paths(LinuxFileSystem("list").list(folder.root(), {.recursive = true})), expected);
}

TEST(Listing, tellsDatesToTheNanosecond) {
    const ScratchFolder folder;
    const std::string file = folder.write("a", "1");
    const std::array<timespec, 2> times{timespec{1'000'000'000, 1}, timespec{20'000'000'000, 7}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0);
    const Expected<FileStatus> status = LinuxFileSystem("list").status(file);
    ASSERT_TRUE(status);
    EXPECT_EQ(status->accessed.time_since_epoch().count(), 1'000'000'000'000'000'001);
    // A date after 2262 is the last one that there is, not one before 1970.
    EXPECT_GT(status->modified.time_since_epoch().count(), 9'000'000'000'000'000'000);
}

TEST(Listing, goesDeepWithFewDescriptors) {
    const ScratchFolder folder;
    std::string deep = "d";
    for (int level = 0; level < 100; ++level)
        deep += "/d";
    folder.write(deep + "/bottom", "1");
    for (int number = 0; number < 100; ++number)
        folder.write("wide" + std::to_string(number) + "/f", "1");
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few{40, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    EXPECT_EQ(paths(LinuxFileSystem("list").list(folder.root(), {.recursive = true})).size(), 101U);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

TEST(Listing, saysWhyAFolderCannotBeListed) {
    const ScratchFolder folder;
    const LinuxFileSystem files("list");
    EXPECT_EQ(files.list(folder.path("none"), {}).error().kind, ErrorKind::notFound);
    EXPECT_EQ(files.list(folder.write("file", ""), {}).error().kind, ErrorKind::wrongType);
    EXPECT_EQ(files.list(folder.makePipe("pipe"), {}).error().kind, ErrorKind::wrongType);
    folder.write("open/a", "1");
    folder.write("open/closed/b", "1");
    folder.write("unsearchable/a", "1");
    ASSERT_EQ(::chmod(folder.path("open/closed").c_str(), 0), 0);
    ASSERT_EQ(::chmod(folder.path("unsearchable").c_str(), 0744), 0);
    ASSERT_EQ(::chmod(folder.root().c_str(), 0755), 0);
    const WithoutPrivileges asNobody;
    EXPECT_EQ(paths(files.list(folder.path("open"), {.recursive = true})), Paths{"a"});
    if (::getuid() == 0) {
        EXPECT_EQ(files.list(folder.path("open/closed"), {}).error().kind,
                  ErrorKind::permissionDenied);
        EXPECT_EQ(files.list(folder.path("unsearchable"), {}).error().kind,
                  ErrorKind::permissionDenied);
    }
}

TEST(MakingFolders, makesAllOrNothing) {
    const ScratchFolder folder;
    LinuxFileSystem files("folders");
    folder.write("file", "1");
    folder.makeFolder("real");
    folder.link("to real", "real");
    folder.link("dangling", "missing");
    EXPECT_TRUE(files.makeFolders(folder.path("a/b/c")));
    EXPECT_TRUE(files.makeFolders(folder.path("a/b/c")));
    EXPECT_TRUE(files.makeFolders(folder.path("to real/x")));
    EXPECT_TRUE(folder.has("a/b/c"));
    EXPECT_TRUE(folder.has("real/x"));
    const auto before = folder.everything();
    const std::string tooLong = "new/sub/" + std::string(300, 'x');
    for (const std::string& name : {std::string("file"), std::string("file/x"),
                                    std::string("dangling"), std::string("dangling/x"), tooLong})
        EXPECT_FALSE(files.makeFolders(folder.path(name))) << name;
    EXPECT_EQ(folder.everything(), before);
}

} // namespace quillon

#include "platform/linux/Ancestry.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/TrashFolder.h"
#include "platform/linux/TrashInfo.h"
#include "support/ScratchFolder.h"

#include <QDateTime>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>

namespace quillon {

using testing::ScratchFolder;

namespace {

using Tree = std::map<std::string, std::string>;

QString valueOf(const std::string& record, const QString& key) {
    const QString text = QString::fromStdString(record);
    const qsizetype start = text.indexOf(key + QLatin1Char('=')) + key.size() + 1;
    return text.mid(start, text.indexOf(QLatin1Char('\n'), start) - start);
}

class TrashTest : public ::testing::Test {
protected:
    std::string put(const std::string& path) {
        const Expected<std::string> trashed = trash.put(path);
        EXPECT_TRUE(trashed) << (trashed ? "" : trashed.error().message.toStdString());
        return trashed.value_or("");
    }

    ScratchFolder folder;
    LinuxFileSystem files{"trash"};
    LinuxTrash trash{files, folder.path("data/Trash")};
};

} // namespace

TEST_F(TrashTest, recordsWhereAndWhen) {
    const std::string file = folder.write("in/100% “é”.txt", "1");
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    EXPECT_EQ(put(file), folder.path("data/Trash/files/100% “é”.txt"));
    const std::string record = folder.read("data/Trash/info/100% “é”.txt.trashinfo");
    EXPECT_TRUE(record.starts_with("[Trash Info]\nPath=/"));
    EXPECT_TRUE(valueOf(record, QStringLiteral("Path"))
                    .endsWith(QStringLiteral("/in/100%25%20%E2%80%9C%C3%A9%E2%80%9D.txt")));
    const QDateTime deleted = QDateTime::fromString(valueOf(record, QStringLiteral("DeletionDate")),
                                                    QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    EXPECT_GE(deleted, before);
    EXPECT_LE(deleted, QDateTime::currentDateTime());
    struct stat found = {};
    ASSERT_EQ(::stat(folder.path("data/Trash/info").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777, 0700U);
}

TEST_F(TrashTest, numbersNamesThatEitherFolderHas) {
    folder.write("data/Trash/files/orphan.txt", "0");
    folder.write("data/Trash/info/lost.txt.trashinfo", "0");
    for (const char* name : {"orphan.txt", "lost.txt", "lost.txt"})
        put(folder.write(name, name));
    put(folder.makeFolder("orphan.txt"));
    EXPECT_EQ(folder.read("data/Trash/files/orphan.txt"), "0");
    EXPECT_EQ(folder.read("data/Trash/files/orphan 2.txt"), "orphan.txt");
    EXPECT_EQ(folder.read("data/Trash/files/lost 3.txt"), "lost.txt");
    EXPECT_FALSE(folder.has("data/Trash/files/lost.txt"));
    EXPECT_FALSE(folder.has("data/Trash/info/orphan.txt.trashinfo"));
    for (const char* name : {"orphan 2.txt", "orphan 3.txt", "lost 2.txt", "lost 3.txt"})
        EXPECT_TRUE(folder.has("data/Trash/info/" + std::string(name) + ".trashinfo")) << name;
}

TEST_F(TrashTest, takesTheLongestNames) {
    std::string name(255, 'x');
    name.replace(251, 4, ".txt");
    const std::string trashed = put(folder.write(name, "1"));
    EXPECT_TRUE(
        folder.has("data/Trash/info/" + std::string(lastComponent(trashed)) + ".trashinfo"));
    EXPECT_EQ(trash.restore(trashed, folder.path(name))->path, folder.path(name));
}

TEST_F(TrashTest, givesBackWithItsRecord) {
    const std::string trashed = put(folder.write("in/a.txt", "1"));
    std::filesystem::remove_all(folder.path("in"));
    EXPECT_EQ(trash.restore(trashed, folder.path("in/a.txt"))->path, folder.path("in/a.txt"));
    const std::string again = put(folder.path("in/a.txt"));
    folder.write("in/a.txt", "2");
    EXPECT_EQ(trash.restore(again, folder.path("in/a.txt"))->path, folder.path("in/a 2.txt"));
    EXPECT_EQ(folder.everything(), (Tree{{"data", "/"},
                                         {"data/Trash", "/"},
                                         {"data/Trash/files", "/"},
                                         {"data/Trash/info", "/"},
                                         {"in", "/"},
                                         {"in/a.txt", "2"},
                                         {"in/a 2.txt", "1"}}));
    EXPECT_EQ(trash.restore(again, folder.path("gone/a.txt")).error().kind, ErrorKind::notFound);
    EXPECT_FALSE(folder.has("gone"));
}

TEST_F(TrashTest, leavesAloneWhatItCannotTake) {
    folder.makePipe("pipe");
    folder.makeFolder("data/Trash/files");
    folder.makeFolder("data/Trash/info");
    const Tree before = folder.everything();
    const std::pair<std::string, ErrorKind> rows[] = {{"pipe", ErrorKind::wrongType},
                                                      {"none", ErrorKind::notFound},
                                                      {"data", ErrorKind::invalid},
                                                      {"data/Trash", ErrorKind::invalid}};
    for (const auto& [name, kind] : rows)
        EXPECT_EQ(trash.put(folder.path(name)).error().kind, kind) << name;
    EXPECT_EQ(folder.everything(), before);
}

TEST(TopTrash, isTheSharedOneOnlyWhenThatCanBeTrusted) {
    const std::string user = std::to_string(::getuid());
    enum class Shared { none, sticky, open, link, file, stickyWithLink };
    const std::pair<Shared, bool> rows[] = {{Shared::none, false}, {Shared::sticky, true},
                                            {Shared::open, false}, {Shared::link, false},
                                            {Shared::file, false}, {Shared::stickyWithLink, false}};
    for (const auto& [kind, isShared] : rows) {
        const ScratchFolder top;
        const ScratchFolder elsewhere;
        if (kind == Shared::link)
            top.link(".Trash", elsewhere.root());
        else if (kind == Shared::file)
            top.write(".Trash", "1");
        else if (kind != Shared::none)
            top.makeFolder(".Trash");
        if (kind == Shared::link)
            std::filesystem::permissions(elsewhere.root(), std::filesystem::perms(01777));
        if (kind == Shared::sticky || kind == Shared::stickyWithLink)
            std::filesystem::permissions(top.path(".Trash"), std::filesystem::perms(01777));
        if (kind == Shared::stickyWithLink)
            top.link(".Trash/" + user, elsewhere.root());
        top.write("in/a.txt", "1");
        Expected<TrashFolder> trash = TrashFolder::openTop(top.root());
        ASSERT_TRUE(trash);
        const int in = ::open(top.path("in").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        const std::string expected = isShared ? ".Trash/" + user : ".Trash-" + user;
        EXPECT_EQ(trash->put(in, "a.txt", "in/a.txt"), top.path(expected + "/files/a.txt"));
        EXPECT_EQ(valueOf(top.read(expected + "/info/a.txt.trashinfo"), QStringLiteral("Path")),
                  QStringLiteral("in/a.txt"));
        EXPECT_EQ(elsewhere.everything(), Tree{});
        ::close(in);
    }
}

TEST(TopTrash, isNoneWhereItWouldBeSomebodyElses) {
    const ScratchFolder top;
    const ScratchFolder elsewhere;
    top.link(".Trash-" + std::to_string(::getuid()), elsewhere.root());
    EXPECT_EQ(TrashFolder::openTop(top.root()).error().kind, ErrorKind::unsupported);
    EXPECT_EQ(elsewhere.everything(), Tree{});
}

TEST_F(TrashTest, neverLeavesTheDisk) {
    const std::string disk = folder.makeFolder("disk");
    // In a mount namespace of this process's own, so that nobody else sees the disk.
    const bool isMounted = ::unshare(CLONE_NEWNS) == 0 &&
                           ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                           ::mount("tmpfs", disk.c_str(), "tmpfs", 0, "mode=0755") == 0;
    if (!isMounted)
        GTEST_SKIP() << "this machine doesn't let tests mount a disk";
    EXPECT_EQ(mountPointOf(folder.makeFolder("disk/deep/er")), disk);
    const std::string trashed = put(folder.write("disk/in/a.txt", "1"));
    const std::string expected = "disk/.Trash-" + std::to_string(::getuid());
    EXPECT_EQ(trashed, folder.path(expected + "/files/a.txt"));
    EXPECT_EQ(valueOf(folder.read(expected + "/info/a.txt.trashinfo"), QStringLiteral("Path")),
              QStringLiteral("in/a.txt"));

    std::filesystem::remove_all(folder.path(expected));
    folder.write(expected, "in the way");
    folder.write("disk/in/a.txt", "2");
    EXPECT_EQ(trash.put(folder.path("disk/in/a.txt")).error().kind, ErrorKind::unsupported);
    EXPECT_EQ(folder.read("disk/in/a.txt"), "2");
    EXPECT_FALSE(folder.has("data/Trash/files/a.txt"));
    EXPECT_EQ(::umount2(disk.c_str(), MNT_DETACH), 0);
}

} // namespace quillon

#include "engine/Actions.h"
#include "platform/Trash.h"
#include "support/ActionBench.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quillon {
namespace {

using namespace testing;
using Tree = std::set<std::string>;

TEST(Scripts, GetThePathAndSayHowTheyEnded) {
    const std::string odd = "it's $(a) \"file\"; 'x' \\ –é.txt";
    struct Row {
        QString script;
        QString logText;
    };
    const Row rows[] = {
        {u"test -f \"$1\" && test \"$1\" = \"$FILE\" && test \"$0\" = quillon"_qs,
         u"ran script"_qs},
        {u"test \"$1\" = \"$PWD/${FILE:t}\""_qs, u"ran script"_qs},
        {u"exit 1"_qs, u"FAILED: script failed (exited non-zero)"_qs},
        {u"print -u2 ' \n  no such bucket \n'; exit 3"_qs,
         u"FAILED: script failed: no such bucket"_qs},
        {u"print -u2 warning; true"_qs, u"ran script"_qs},
        {u"kill -9 $$"_qs, u"FAILED: script failed: ended by signal 9"_qs},
        {u"print -u2 half; kill -9 $$"_qs, u"FAILED: script failed: ended by signal 9: half"_qs},
    };
    ActionBench bench;
    bench.machine.write(odd, "text");
    for (const Row& row : rows)
        EXPECT_EQ(bench.logText(testing::runScript(row.script), odd), row.logText)
            << row.script.toStdString();
    EXPECT_EQ(bench.machine.contents(odd), "text");
}

TEST(Scripts, AreEndedWhenTheyTakeTooLong) {
    ActionBench bench;
    bench.machine.write("a.txt", "");
    bench.settings.scriptTimeout = std::chrono::milliseconds(100);
    EXPECT_EQ(bench.logText(testing::runScript(u"sleep 60"_qs), "a.txt"),
              u"FAILED: script failed: ended after 1 second"_qs);
}

TEST(Scripts, CannotFloodTheLog) {
    ActionBench bench;
    bench.machine.write("a.txt", "");
    const QString text = bench.logText(
        testing::runScript(u"repeat 5000 print -u2 -n xxxxxxxxxx; exit 1"_qs), "a.txt");
    EXPECT_TRUE(text.endsWith(u"xx…")) << text.size();
    EXPECT_LT(text.size(), 2100);
}

TEST(Shortcuts, AreProgramsOfQuillonsOwnFolder) {
    ActionBench bench;
    bench.machine.write("a.txt", "");
    const std::string folder = bench.machine.home() + "/data/shortcuts/";
    const auto install = [&](const std::string& name, const std::string& body) {
        bench.machine.write(folder + name, "#!/bin/sh\n" + body);
        ASSERT_EQ(::chmod((folder + name).c_str(), 0755), 0);
    };
    install("Make it small", "test \"$1\" = -i && test -f \"$2\"");
    install("mute", "exit 1");
    install("loud", "echo oops >&2; exit 1");
    bench.machine.write(bench.machine.home() + "/data/outside", "#!/bin/sh\n");
    bench.machine.write(folder + "text", "not a program");
    struct Row {
        QString name;
        QString logText;
    };
    const Row rows[] = {
        {u"Make it small"_qs, u"ran shortcut “Make it small”"_qs},
        {u"mute"_qs, u"FAILED: shortcut “mute” failed: exited non-zero"_qs},
        {u"loud"_qs, u"FAILED: shortcut “loud” failed: oops"_qs},
        {u""_qs, u"FAILED: shortcut “” failed: no shortcut set"_qs},
        {u"absent"_qs, u"FAILED: shortcut “absent” failed: No such file or directory"_qs},
        {u"text"_qs, u"FAILED: shortcut “text” failed: Permission denied"_qs},
        {u"../outside"_qs,
         u"FAILED: shortcut “../outside” failed: a shortcut is a name, not a path"_qs},
        {u".."_qs, u"FAILED: shortcut “..” failed: a shortcut is a name, not a path"_qs},
    };
    for (const Row& row : rows)
        EXPECT_EQ(bench.logText(testing::runShortcut(row.name), "a.txt"), row.logText);
}

/// Packs `folder` and removes it.
void pack(const LinuxMachine& machine, const std::string& folder, const std::string& archive) {
    const std::string script = "cd '" + machine.work() + "' && bsdtar -caf '" + archive + "' -C '" +
                               folder + "' . && rm -r '" + folder + "'";
    ASSERT_EQ(std::system(script.c_str()), 0) << script;
}

class Unpacking : public ::testing::Test {
protected:
    void packPhotos(const std::string& archive) {
        bench.machine.write("src/beach.jpg", "beach");
        bench.machine.write("src/album/hill.jpg", "hill");
        pack(bench.machine, "src", archive);
    }
    /// Those names, each below `folder`.
    static Tree photosIn(const std::string& folder) {
        return {folder + "/", folder + "/album/", folder + "/album/hill.jpg",
                folder + "/beach.jpg"};
    }
    static Tree joined(Tree first, const Tree& second) {
        first.insert(second.begin(), second.end());
        return first;
    }

    ActionBench bench;
};

TEST_F(Unpacking, NamesTheFolderAfterTheArchiveAndTrashesIt) {
    for (const char* archive : {"photos.tar.gz", "photos.TAR.xz", "photos.zip", "photos.tar"}) {
        bench.machine.write("photos/mine.txt", "mine");
        packPhotos(archive);
        const ActionResult result = bench.perform(unpackArchive(false), archive);
        EXPECT_EQ(result.phrases, (QStringList{u"unpacked to photos 2"_qs, u"removed original"_qs}))
            << archive;
        EXPECT_EQ(result.place, ActionResult::Place::gone);
        EXPECT_FALSE(bench.machine.contents(result.trashedPath).empty());
        EXPECT_EQ(bench.machine.tree(),
                  joined({"photos/", "photos/mine.txt"}, photosIn("photos 2")));
        std::filesystem::remove_all(bench.machine.at("photos 2"));
    }
}

TEST_F(Unpacking, LeavesABadArchiveAlone) {
    bench.machine.write("bad.zip", "not a zip at all");
    bench.machine.makeFolder("none");
    pack(bench.machine, "none", "empty.tar");
    EXPECT_TRUE(
        bench.logText(unpackArchive(false), "bad.zip").startsWith(u"FAILED: unpack failed: "));
    EXPECT_EQ(bench.logText(unpackArchive(false), "empty.tar"),
              u"FAILED: could not extract archive"_qs);
    EXPECT_EQ(bench.machine.tree(), (Tree{"bad.zip", "empty.tar"}));
}

TEST_F(Unpacking, DoesNothingTheSecondTimeWhenItKeepsTheOriginal) {
    packPhotos("photos.tar.gz");
    const auto run = [&] {
        return bench.logText(unpackArchive(true), "photos.tar.gz") + u"; "_qs +
               bench.logText(makeAction(ActionType::addTag), "photos.tar.gz");
    };
    EXPECT_EQ(run(), u"unpacked to photos; tagged blue"_qs);
    EXPECT_EQ(run(), u"; "_qs);
    EXPECT_EQ(bench.machine.tree(), joined({"photos.tar.gz"}, photosIn("photos")));
}

TEST_F(Unpacking, IsNotHeldBackByAFolderThatIsSomethingElse) {
    packPhotos("photos.tar.gz");
    bench.machine.write("photos/notes.txt", "made after the archive");
    bench.machine.makeFolder("photos 2");
    EXPECT_EQ(bench.logText(unpackArchive(true), "photos.tar.gz"), u"unpacked to photos 3"_qs);
    EXPECT_EQ(bench.logText(unpackArchive(true), "photos.tar.gz"), QString());
    bench.machine.write("photos 3/beach.jpg", "BEACH");
    EXPECT_EQ(bench.logText(unpackArchive(true), "photos.tar.gz"), u"unpacked to photos 4"_qs);
    EXPECT_EQ(bench.machine.contents("photos 3/beach.jpg"), "BEACH");
}

TEST_F(Unpacking, MakesOneFolderHoweverOftenTheTrashRefusesTheArchive) {
    class FullTrash : public Trash {
    public:
        Expected<std::string> put(const std::string&) override {
            return failure(ErrorKind::unsupported, u"there is no trash here"_qs);
        }
        Expected<Placement> restore(const std::string&, const std::string&) override {
            return failure(ErrorKind::unsupported, u"there is no trash here"_qs);
        }
    } trash;
    packPhotos("photos.zip");
    const Platform& real = bench.machine.platform;
    const Platform platform{
        real.fileSystem,   trash,          real.tags,     real.provenance, real.cloudFiles,
        real.contentTypes, real.processes, real.archives, real.clock,      real.folders};
    const auto run = [&] {
        const ActionResult result =
            performAction(unpackArchive(false), bench.contextOf("photos.zip", platform));
        EXPECT_FALSE(result.succeeded);
        EXPECT_EQ(result.place, ActionResult::Place::same);
        return result.phrases.join(u", "_qs);
    };
    const QString refused = u", could not remove original: there is no trash here"_qs;
    for (int times = 0; times < 2; ++times)
        EXPECT_EQ(run(), u"unpacked to photos"_qs + refused);
    EXPECT_EQ(bench.machine.tree(), joined({"photos.zip"}, photosIn("photos")));
    EXPECT_EQ(bench.logText(unpackArchive(false), "photos.zip"),
              u"unpacked to photos, removed original"_qs);
    EXPECT_EQ(bench.machine.tree(), photosIn("photos"));
}

} // namespace
} // namespace quillon

#include "platform/linux/BsdtarArchives.h"
#include "platform/linux/LinuxProcesses.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace quillon {

using testing::ScratchFolder;

namespace {

using Tree = std::map<std::string, std::string>;

class ArchivesTest : public ::testing::Test {
protected:
    void SetUp() override {
        folder.makeFolder("out");
        folder.makeFolder("make");
    }

    /// Runs a shell script in the folder "make", where $A is the archive to be.
    std::string make(const std::string& name, const std::string& script) {
        ProcessRequest request;
        request.executable = "/bin/sh";
        request.arguments = {"-ec", script};
        request.environment = {{"A", folder.path("out/" + name)}};
        request.workingFolder = folder.path("make");
        const Expected<ProcessResult> result = processes.run(request);
        EXPECT_TRUE(result && result->succeeded())
            << name << (result ? result->errorOutput.toStdString() : "");
        return folder.path("out/" + name);
    }

    Expected<Unpacked> unpack(const std::string& archive, const UnpackLimits& limits = {}) {
        return archives.unpack(archive, folder.path("out/unpacked"), limits);
    }

    [[nodiscard]] Tree unpacked(const std::string& name = "out/unpacked/") const {
        Tree tree;
        for (const auto& [path, contents] : folder.everything())
            if (path.starts_with(name))
                tree[path.substr(name.size())] = contents;
        return tree;
    }

    ScratchFolder folder;
    LinuxProcesses processes;
    BsdtarArchives archives{processes, "archives"};
};

} // namespace

TEST_F(ArchivesTest, unpacksWhateverTheNameAndFormat) {
    const std::string tree = "mkdir -p d/e; echo 1 > d/a.txt; echo 2 > d/é; ln -s a.txt d/l; "
                             "ln d/a.txt d/e/hard; ln -sf ../a.txt d/e/up; ";
    const Tree expected{
        {"d", "/"},   {"d/a.txt", "1\n"},  {"d/é", "2\n"},           {"d/l", "-> a.txt"},
        {"d/e", "/"}, {"d/e/hard", "1\n"}, {"d/e/up", "-> ../a.txt"}};
    const std::pair<std::string, std::string> rows[] = {
        {"a.tar.gz", "bsdtar -czf \"$A\" d"},
        {"-x.zip", "bsdtar -a -cf \"$A\" d"},
        {"host:b@c '$A'.7z", "bsdtar -a -cf \"$A\" d"},
        {"é.tar.xz", "bsdtar -cJf \"$A\" d"}};
    for (const auto& [name, script] : rows) {
        const Expected<Unpacked> done = unpack(make(name, tree + script + "; rm -r d"));
        ASSERT_TRUE(done) << name << done.error().message.toStdString();
        EXPECT_EQ(unpacked(), expected) << name;
        std::filesystem::remove_all(done->folder);
    }
}

TEST_F(ArchivesTest, takesAFreeNameAndNeverAnothersRights) {
    folder.write("out/unpacked", "in the way");
    const std::string archive =
        make("a.tar", "mkdir d; echo 1 > d/s; chmod 6755 d/s; chmod 0500 d; bsdtar -cf \"$A\" d");
    EXPECT_EQ(unpack(archive).value().folder, folder.path("out/unpacked 2"));
    EXPECT_EQ(folder.read("out/unpacked"), "in the way");
    struct stat found = {};
    ASSERT_EQ(::stat(folder.path("out/unpacked 2/d/s").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777, 0755U);
    ASSERT_EQ(::stat(folder.path("out/unpacked 2/d").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0700, 0700U);
}

TEST_F(ArchivesTest, findsWhatItUnpackedEarlier) {
    const std::string unreadable = "#mtree\\nd/u type=file mode=0 contents=u\\n";
    const std::string archive =
        make("a.tar", "mkdir -p d/e; echo 1 > d/s; ln -s s d/l; echo 2 > u; printf '" + unreadable +
                          "' > list; bsdtar -cf \"$A\" d @list");
    const auto expectUnpackedOnceTo = [&](const std::string& name) {
        for (const bool isFirst : {true, false}) {
            const Expected<Unpacked> done = unpack(archive);
            ASSERT_TRUE(done) << done.error().message.toStdString();
            EXPECT_EQ(done->folder, folder.path(name));
            EXPECT_EQ(done->done, isFirst);
        }
    };
    expectUnpackedOnceTo("out/unpacked");
    // Who can't read it can't tell that it is the same.
    struct stat found = {};
    ASSERT_EQ(::stat(folder.path("out/unpacked/d/u").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777, 0400U);
    folder.write("out/unpacked/d/s", "3\n");
    expectUnpackedOnceTo("out/unpacked 2");
    EXPECT_EQ(folder.read("out/unpacked/d/s"), "3\n");
}

TEST_F(ArchivesTest, refusesWhatIsUnsafeOrBroken) {
    const struct {
        std::string name, script;
        QString message; ///< a part of it
    } rows[] = {
        {"up.zip", "echo 1 > f; bsdtar -a -cPf \"$A\" -s ,^,../../, f", QStringLiteral("'..'")},
        {"up.tar", "echo 1 > f; bsdtar -cPf \"$A\" -s ,^,d/../../, f", QStringLiteral("'..'")},
        {"absolute.tar", "ln -s /etc l; bsdtar -cf \"$A\" l", QStringLiteral("leads out")},
        {"link.tar", "mkdir d; ln -s ../.. d/l; bsdtar -cf \"$A\" d", QStringLiteral("leads out")},
        {"chain.tar",
         "mkdir -p d/e; ln -s ../.. d/e/top; ln -s d/e/top/.. l; bsdtar -cf \"$A\" d l",
         QStringLiteral("leads out")},
        {"through.tar",
         "ln -s /tmp l; bsdtar -cf \"$A\" l; rm l; mkdir l; echo 1 > l/f; bsdtar -rf \"$A\" l/f; "
         "true",
         QString()},
        {"pipe.tar", "mkfifo p; bsdtar -cf \"$A\" p", QStringLiteral("pipe, socket or device")},
        {"many.tar", "touch 1 2 3 4 5 6; bsdtar -cf \"$A\" 1 2 3 4 5 6",
         QStringLiteral("more than")},
        {"big.tar.gz", "head -c 3000000 /dev/zero > z; bsdtar -czf \"$A\" z",
         QStringLiteral("more than")},
        {"empty.tar", "bsdtar -cf \"$A\" -T /dev/null", QStringLiteral("")},
        {"cut.tar.gz", "head -c 9000 /dev/urandom > r; bsdtar -czf - r | head -c 4000 > \"$A\"",
         QStringLiteral("runcated")},
        {"text.zip", "echo nonsense > \"$A\"", QStringLiteral("not an archive")},
        {"list.tar", "echo '#mtree\n./f type=file contents=/etc/passwd' > \"$A\"",
         QStringLiteral("not an archive")},
        {"binary.zip", "printf '\\001\\002garbage' > \"$A\"",
         QStringLiteral("Unrecognized archive format")},
        {"secret.zip",
         "echo 1 > f; bsdtar -a -cf \"$A\" --options zip:encryption=aes256 --passphrase x f",
         QStringLiteral("protected by a password")},
    };
    for (const auto& row : rows) {
        const std::string archive = make(row.name, row.script);
        const Tree before = folder.everything();
        const Expected<Unpacked> done = unpack(archive, {.entries = 5, .bytes = 1'000'000});
        ASSERT_FALSE(done) << row.name;
        EXPECT_EQ(done.error().kind, ErrorKind::invalid) << row.name;
        const std::string message = done.error().message.toStdString();
        EXPECT_TRUE(done.error().message.contains(row.message)) << row.name << ": " << message;
        EXPECT_EQ(done.error().message.isEmpty(), row.name == "empty.tar") << message;
        EXPECT_FALSE(done.error().message.contains(QStringLiteral(".quillon"))) << message;
        EXPECT_EQ(folder.everything(), before) << row.name;
        std::filesystem::remove_all(folder.path("make"));
        folder.makeFolder("make");
    }
}

} // namespace quillon

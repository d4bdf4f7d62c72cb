#include "platform/linux/NextcloudFiles.h"
#include "platform/linux/PropertyList.h"
#include "platform/linux/XattrProvenance.h"
#include "support/AttributeFolder.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {

namespace {

constexpr const char* whereFroms = "user.com.apple.metadata:kMDItemWhereFroms";
constexpr const char* origin = "user.xdg.origin.url";
constexpr const char* referrer = "user.xdg.referrer.url";

const QString file = QStringLiteral("https://dl.example.org/a.zip");
const QString page = QStringLiteral("https://example.org/");

TEST(ProvenanceTest, JoinsWhatMacsAndLinuxRecord) {
    const QByteArray macs = encodeStringList({file, page, QString(), file});
    const struct {
        std::vector<std::pair<const char*, QByteArray>> attributes;
        QStringList expected;
    } cases[] = {
        {{}, {}},
        {{{whereFroms, macs}}, {file, page}},
        {{{referrer, page.toUtf8()}, {origin, file.toUtf8()}}, {file, page}},
        {{{whereFroms, macs}, {origin, page.toUtf8()}, {referrer, "about:blank"}},
         {file, page, QStringLiteral("about:blank")}},
        {{{whereFroms, "no list at all"}, {origin, file.toUtf8()}}, {file}},
        {{{whereFroms, ""}, {origin, ""}}, {}},
    };
    const AttributeFolder folder;
    if (!folder.isUsable()) {
        GTEST_SKIP() << "no file system with extended attributes";
    }
    for (const auto& [attributes, expected] : cases) {
        const std::string path = folder.file("a.zip");
        for (const auto& [name, value] : attributes) {
            ASSERT_TRUE(setAttribute(path, name, value));
        }
        EXPECT_EQ(XattrProvenance().whereFrom(path), expected);
    }
    EXPECT_EQ(XattrProvenance().whereFrom(folder.file("b") + "-missing"), QStringList());
}

TEST(CloudFilesTest, KnowsBothPlaceholdersOfNextcloud) {
    const AttributeFolder folder;
    if (!folder.isUsable()) {
        GTEST_SKIP() << "no file system with extended attributes";
    }
    const std::string marked = folder.file("film.mkv");
    setAttribute(marked, "user.nextcloud.hydrate_exec", "");
    EXPECT_TRUE(NextcloudFiles().isOnlineOnly(marked));
    EXPECT_TRUE(NextcloudFiles().isOnlineOnly(folder.file("film.mkv.nextcloud")));
    EXPECT_FALSE(NextcloudFiles().isOnlineOnly(folder.file("nextcloud")));
    EXPECT_FALSE(NextcloudFiles().isOnlineOnly("/nowhere/film.mkv"));
}

} // namespace

} // namespace quillon::testing

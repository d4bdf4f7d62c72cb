#include "platform/linux/PropertyList.h"
#include "platform/linux/XattrTags.h"
#include "support/AttributeFolder.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {

namespace {

constexpr const char* finder = "user.com.apple.metadata:_kMDItemUserTags";
constexpr const char* desktop = "user.xdg.tags";
constexpr const char* samba = "user.DosStream.com.apple.metadata:_kMDItemUserTags:$DATA";

/// ["Red\n6"] as a Mac writes it.
const QByteArray redOfMac = QByteArray::fromHex("62706c6973743030" // bplist00
                                                "a101"             // a list of one: object 1
                                                "555265640a36"     // five letters
                                                "080a"             // where the two objects begin
                                                "000000000000"
                                                "0101"
                                                "0000000000000002"
                                                "0000000000000000"
                                                "0000000000000010");
const QByteArray redAsXml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">"
                            "<array><string>Red\n6</string></array></plist>";

/// Lists in lists, each naming the next fourteen times: 14^12 strings in 300 bytes.
QByteArray unfoldingList() {
    constexpr int depth = 12;
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (int i = 0; i < depth; ++i) {
        offsets.append(static_cast<char>(bytes.size()));
        bytes.append('\xAE').append(14, static_cast<char>(i + 1));
    }
    offsets.append(static_cast<char>(bytes.size()));
    bytes.append("\x51"
                 "a");
    const auto table = static_cast<char>(bytes.size());
    bytes += offsets + QByteArray(6, '\0') + "\x01\x01";
    bytes += QByteArray(7, '\0') + static_cast<char>(depth + 1) + QByteArray(15, '\0') + table;
    return bytes;
}

using Entries = std::optional<QStringList>;
using Lists = std::array<Entries, 3>; ///< the Finder's, the desktop's, Samba's

struct TagCase {
    const char* title;
    const char* before;    ///< the three lists between bars; a colon stands for a newline
    const char* operation; ///< "+Red6" or "-Red"
    bool changed;
    const char* after;
    const char* tags;
};

Entries entries(const QString& text) {
    QString lines = text;
    return text.isEmpty() ? Entries() : lines.replace(u':', u'\n').split(u';');
}

Lists lists(const char* text) {
    const QStringList parts = QString::fromUtf8(text).split(u'|');
    return {entries(parts[0]), entries(parts[1]), entries(parts[2])};
}

QStringList tagNames(const char* text) {
    return entries(QString::fromUtf8(text)).value_or(QStringList());
}

void writeLists(const std::string& path, const Lists& lists) {
    if (lists[0]) {
        setAttribute(path, finder, encodeStringList(*lists[0]));
    }
    if (lists[1]) {
        setAttribute(path, desktop, lists[1]->join(u',').toUtf8());
    }
    if (lists[2]) {
        setAttribute(path, samba, encodeStringList(*lists[2]) + '\0');
    }
}

Lists readLists(const std::string& path) {
    const auto list = attribute(path, finder);
    const auto text = attribute(path, desktop);
    const auto zeroEnded = attribute(path, samba);
    EXPECT_TRUE(!zeroEnded || zeroEnded->endsWith('\0'));
    return {list ? decodeStringList(*list) : std::nullopt,
            text ? Entries(QString::fromUtf8(*text).split(u',')) : std::nullopt,
            zeroEnded ? decodeStringList(zeroEnded->chopped(1)) : std::nullopt};
}

void PrintTo(const TagCase& tagCase, std::ostream* out) {
    *out << tagCase.title;
}

class TagsTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!folder_.isUsable()) {
            GTEST_SKIP() << "no file system with extended attributes";
        }
    }

    AttributeFolder folder_;
    XattrTags tags_;
};

class TagChangeTest : public TagsTest, public ::testing::WithParamInterface<TagCase> {};

TEST_P(TagChangeTest, ChangesTheListsAndNothingElse) {
    const TagCase& expected = GetParam();
    const std::string path = folder_.file("a.txt");
    writeLists(path, lists(expected.before));
    const QString operation = QString::fromUtf8(expected.operation);
    const Expected<bool> changed =
        operation.startsWith(u'+')
            ? tags_.add(path, operation.mid(1).chopped(1), operation.last(1).toInt())
            : tags_.remove(path, operation.mid(1));
    EXPECT_EQ(changed, expected.changed);
    EXPECT_EQ(readLists(path), lists(expected.after));
    EXPECT_EQ(tags_.tags(path).value(), tagNames(expected.tags));
}

INSTANTIATE_TEST_SUITE_P(
    Table, TagChangeTest,
    ::testing::Values(
        TagCase{"first tag", "||", "+Red6", true, "Red:6|Red|", "Red"},
        TagCase{"others keep their colours and are mirrored", "Tax 2024:0;Blue:4||", "+Red6", true,
                "Tax 2024:0;Blue:4;Red:6|Tax 2024;Blue;Red|", "Tax 2024;Blue;Red"},
        TagCase{"a comma is none of the desktop's", "Paris, Rome:0||", "+Red6", true,
                "Paris, Rome:0;Red:6|Red|", "Paris, Rome;Red"},
        TagCase{"known to the desktop alone", "|Work;red|", "+Red6", false, "|Work;red|",
                "Work;red"},
        TagCase{"known to Samba alone", "||Red:6", "+Red6", false, "||Red:6", "Red"},
        TagCase{"Samba's others stay where they are", "||Übung:2", "+Red6", true,
                "Red:6|Red|Übung:2", "Red;Übung"},
        TagCase{"the last tag takes the attributes with it", "Red:6|Red|", "-Red", true, "||", ""},
        TagCase{"every spelling, in every list", "RED;Blue:4;Red:6|red;Home|Red:6", "-Red", true,
                "Blue:4|Home|", "Blue;Home"},
        TagCase{"none to remove", "Redwood:6||", "-Red", false, "Redwood:6||", "Redwood"}));

TEST_F(TagsTest, WritesTheBytesThatAMacWrites) {
    const std::string path = folder_.file("a.txt");
    ASSERT_EQ(tags_.add(path, QStringLiteral("Red"), 6), true);
    EXPECT_EQ(attribute(path, finder), redOfMac);
}

TEST_F(TagsTest, ReadsWhatOthersWrite) {
    for (const QByteArray& bytes : {redOfMac, redAsXml}) {
        const std::string path = folder_.file("a.txt");
        setAttribute(path, finder, bytes);
        EXPECT_EQ(tags_.tags(path).value(), QStringList{QStringLiteral("Red")});
    }
}

TEST_F(TagsTest, LeavesWhatItCannotUnderstandAsItIs) {
    const struct {
        const char* attribute;
        QByteArray bytes;
    } cases[] = {
        {finder, "Red"},
        {finder, redOfMac.chopped(3)},
        {finder, "<plist><array><integer>1</integer></array></plist>"},
        {finder, "<plist><dict><key>Red</key><true/></dict></plist>"},
        {finder, unfoldingList()},
        {samba, "Red"},
        {desktop, "Caf\xE9"},
    };
    for (const auto& [name, bytes] : cases) {
        SCOPED_TRACE(bytes.toHex().toStdString());
        const std::string path = folder_.file("a.txt");
        ASSERT_TRUE(setAttribute(path, name, bytes));
        const auto tags = tags_.tags(path);
        const auto added = tags_.add(path, QStringLiteral("Red"), 6);
        const auto removed = tags_.remove(path, QStringLiteral("Red"));
        EXPECT_TRUE(!tags && tags.error().kind == ErrorKind::invalid);
        EXPECT_TRUE(!added && added.error().kind == ErrorKind::invalid);
        EXPECT_TRUE(!removed && removed.error().kind == ErrorKind::invalid);
        EXPECT_EQ(attribute(path, name), bytes);
    }
}

TEST_F(TagsTest, NeverFollowsALink) {
    const std::string target = folder_.file("target");
    ASSERT_EQ(tags_.add(target, QStringLiteral("Red"), 6), true);
    const std::string link = folder_.link("link", target);
    EXPECT_EQ(tags_.tags(link).value(), QStringList());
    EXPECT_EQ(tags_.remove(link, QStringLiteral("Red")), false);
    const auto added = tags_.add(link, QStringLiteral("Blue"), 4);
    EXPECT_TRUE(!added && added.error().kind == ErrorKind::unsupported);
    EXPECT_EQ(tags_.tags(target).value(), QStringList{QStringLiteral("Red")});
}

TEST_F(TagsTest, ChangesBothListsOrNone) {
    // Long enough that for some filling there is room for the one list and not for the other.
    const QString name = QString(120, u'x');
    const QByteArray both = "Work," + name.toUtf8();
    int refusals = 0;
    for (qsizetype filling = 2048; filling <= 4096; filling += 32) {
        const std::string path = folder_.file("a.txt");
        setAttribute(path, desktop, "Work");
        if (!setAttribute(path, "user.filling", QByteArray(filling, 'x'))) {
            break;
        }
        const Expected<bool> added = tags_.add(path, name, 6);
        refusals += added ? 0 : 1;
        ASSERT_EQ(attribute(path, finder).has_value(), added.has_value()) << filling;
        ASSERT_EQ(attribute(path, desktop), added ? both : "Work") << filling;
    }
    if (refusals == 0) {
        GTEST_SKIP() << "this file system has room for any attribute";
    }
}

} // namespace

} // namespace quillon::testing

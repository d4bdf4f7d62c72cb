#include "platform/FileNames.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace quillon {

TEST(FileNames, splitAtTheLastDot) {
    const struct {
        std::string_view name, stem, extension;
    } rows[] = {
        {"a.txt", "a", "txt"},
        {"a.tar.gz", "a.tar", "gz"},
        {"a", "a", ""},
        {".bashrc", ".bashrc", ""},
        {"a.", "a.", ""},
        {".a.txt", ".a", "txt"},
        {"a b.c d", "a b", "c d"},
        {"", "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(splitName(row.name).stem, row.stem) << row.name;
        EXPECT_EQ(splitName(row.name).extension, row.extension) << row.name;
    }
}

TEST(FileNames, cutPaths) {
    const struct {
        std::string_view path, parent, last;
    } rows[] = {
        {"/a/b", "/a", "b"}, {"/a", "/", "a"},  {"/", "/", "/"},      {"/a/b/", "/a", "b"},
        {"a", "", "a"},      {"a/b", "a", "b"}, {"/a//b", "/a", "b"}, {{}, "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(parentPath(row.path), row.parent) << row.path;
        EXPECT_EQ(lastComponent(row.path), row.last) << row.path;
    }
    EXPECT_EQ(joinPath("/", "a"), "/a");
    EXPECT_EQ(joinPath("", "a"), "a");
    EXPECT_EQ(joinPath("/a/", "b"), "/a/b");
}

TEST(FileNames, numberNames) {
    EXPECT_EQ(numberedName("a.txt", 2), "a 2.txt");
    EXPECT_EQ(numberedName("a", 13), "a 13");
    EXPECT_EQ(numberedName(".bashrc", 2), ".bashrc 2");
    EXPECT_EQ(numberedName("a.tar.gz", 3), "a.tar 3.gz");
    // 125 two-byte letters and ".txt" leave one byte: the number costs two letters, not one and a
    // half.
    std::string letters;
    for (int count = 0; count < 125; ++count)
        letters += "é";
    EXPECT_EQ(numberedName(letters + ".txt", 2), letters.substr(0, 248) + " 2.txt");
    EXPECT_EQ(fittedName(letters + letters, "txt"), letters + ".txt");
    const std::string endless = "a." + std::string(300, 'x');
    EXPECT_EQ(numberedName(endless, 2), endless.substr(0, 253) + " 2");
}

TEST(FileNames, knowUtf8) {
    const struct {
        std::string_view bytes;
        bool isValid;
    } rows[] = {
        {"plain", true},
        {"é€😀", true},
        {"\xE9", false},
        {"\xC0\xAF", false},
        {"\xE0\x80\x80", false},
        {"\xED\xA0\x80", false},
        {"\xF4\x90\x80\x80", false},
        {"\xE2\x82", false},
        {"a\x80", false},
        {"\xF0\x80\x80\x80", false},
        {"\xF8\x88\x80\x80\x80", false},
        {"\xC3(", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(isValidUtf8(row.bytes), row.isValid) << row.bytes;
}

RC_GTEST_PROP(FileNames, numberedNamesAreDifferentValidAndShortEnough, ()) {
    const auto letters = *rc::gen::container<std::vector<std::string>>(
        rc::gen::element<std::string>("a", ".", "é", "€", "😀", " ", "xyzzyxyzzy"));
    std::string name;
    for (const std::string& letter : letters)
        name += letter;
    const unsigned number = *rc::gen::inRange(2U, 4'000'000'000U);
    const std::string one = numberedName(name, number);
    RC_ASSERT(one.size() <= maxNameBytes);
    RC_ASSERT(isValidUtf8(one));
    RC_ASSERT(one != numberedName(name, number + 1));
}

} // namespace quillon

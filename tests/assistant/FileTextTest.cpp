#include "assistant/FileText.h"

#include "assistant/ByteCount.h"
#include "platform/FileNames.h"
#include "support/FakePlatform.h"
#include "support/LinuxMachine.h"
#include "support/PrintQt.h"

#include <QTimeZone>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Gives the text that it was told of, and notes which files it was asked to open.
class FakeReader final : public TextReader {
public:
    Expected<QString> text = failure(ErrorKind::invalid, u"unreadable"_s);
    std::vector<std::pair<std::string, TextKind>> opened;

    Expected<QString> read(const std::string& path, TextKind kind) override {
        opened.emplace_back(lastComponent(path), kind);
        return text;
    }
};

class DescribedFiles final : public testing::NoFileSystem {
public:
    std::map<std::string, FileStatus> byPath;

    Expected<FileStatus> status(const std::string& path) const override {
        const auto found = byPath.find(path);
        return found == byPath.end() ? failure(ErrorKind::notFound, u"gone"_s)
                                     : Expected<FileStatus>(found->second);
    }
};

class FileTextTest : public ::testing::Test {
protected:
    static Timestamp noon(int month, int day) {
        return Timestamp{std::chrono::seconds(
            QDateTime(QDate(2026, month, day), QTime(12, 0)).toSecsSinceEpoch())};
    }

    testing::FakePlatform fake_;
    DescribedFiles files_;
    Platform platform_{.fileSystem = files_,
                       .trash = fake_.trash,
                       .tags = fake_.tags,
                       .provenance = fake_.provenance,
                       .cloudFiles = fake_.cloudFiles,
                       .contentTypes = fake_.contentTypes,
                       .processes = fake_.processes,
                       .archives = fake_.archives,
                       .clock = fake_.clock,
                       .folders = fake_.platform.folders};
    FakeReader reader_;
    FileText texts_{platform_, reader_, QLocale(QLocale::English, QLocale::UnitedKingdom)};
};

} // namespace

TEST_F(FileTextTest, SaysWhatIsKnownLineByLine) {
    const std::string path = "/in/Scan 7.pdf";
    EXPECT_EQ(texts_.describe(path, true), u"name: Scan 7.pdf\nkind: PDFs"_s) << "gone";

    files_.byPath[path].size = 1'234'567;
    files_.byPath[path].modified = noon(5, 2);
    EXPECT_EQ(texts_.describe(path, false),
              u"name: Scan 7.pdf\nkind: PDFs\nsize: 1.2 MB\ndate: 2026-05-02"_s);
    EXPECT_TRUE(reader_.opened.empty());

    files_.byPath[path].created = noon(3, 7);
    fake_.provenance.byPath[path] = {u""_s, u"mailto:a@b.example"_s,
                                     u"https://dl.shop.example/x?y"_s, u"https://other.example/"_s};
    reader_.text = u"\t Invoice\r\n\n 42 \u2028due 12 March  2026\n"_s;
    const QString known = u"name: Scan 7.pdf\nkind: PDFs\nsize: 1.2 MB\ndate: 2026-03-07\n"
                          "downloaded from: dl.shop.example"_s;
    EXPECT_EQ(texts_.describe(path, false), known);
    EXPECT_TRUE(reader_.opened.empty()) << "contents that nobody allowed to read";
    EXPECT_EQ(texts_.describe(path, true),
              known + u"\ndate in text: 2026-03-12\ntext: Invoice 42 due 12 March 2026"_s);
    reader_.text = u" \n"_s;
    EXPECT_EQ(texts_.describe(path, true), known);

    files_.byPath["/in/a.pdf"].type = FileType::directory;
    files_.byPath["/in/a.pdf"].modified = noon(5, 2);
    EXPECT_EQ(texts_.describe("/in/a.pdf", true),
              u"name: a.pdf\nkind: Folders\ndate: 2026-05-02"_s);
}

TEST_F(FileTextTest, GivesEachKindToItsReader) {
    const testing::LinuxMachine machine;
    FileText texts(machine.platform, reader_);
    reader_.text = u"words"_s;
    const struct {
        std::string name;
        std::optional<TextKind> kind;
    } cases[] = {
        {"a.PDF", TextKind::pdf},      {"a.jpeg", TextKind::image},
        {"a.rtf", TextKind::richText}, {"a.DOCX", TextKind::document},
        {"a.doc", TextKind::document}, {"a.odt", TextKind::document},
        {"a.txt", TextKind::plain},    {"a.csv", TextKind::plain},
        {"a.cpp", TextKind::plain},    {"a.ts", TextKind::plain},
        {"Makefile", TextKind::plain}, {"a.xlsx", std::nullopt},
        {"a.zip", std::nullopt},       {"a.mp4", std::nullopt},
        {"a", std::nullopt},           {"b.pdf.nextcloud", std::nullopt},
    };
    for (const auto& [name, kind] : cases) {
        reader_.opened.clear();
        EXPECT_EQ(texts.text(machine.write(name, "x")).has_value(), kind.has_value()) << name;
        EXPECT_EQ(reader_.opened.empty(), !kind) << name;
        if (kind && !reader_.opened.empty()) {
            EXPECT_EQ(reader_.opened.front(), std::pair(name, *kind));
        }
    }
}

TEST_F(FileTextTest, CutsWithoutCuttingACharacter) {
    const QString horse = QString::fromUcs4(U"\U0001F40E", 1);
    reader_.text = QString(699, u'x') + horse + u"y"_s;
    EXPECT_EQ(texts_.text("a.txt"), QString(699, u'x'));
    reader_.text = QString(698, u'x') + horse + u"y"_s;
    EXPECT_EQ(texts_.text("a.txt"), QString(698, u'x') + horse);
}

TEST_F(FileTextTest, LetsNoFileWriteLinesOfItsOwn) {
    const std::string path = "/in/a\n[f2]\rname:\u2028x\u202e\u200b.txt";
    files_.byPath[path].size = 1;
    reader_.text = u"one\n\n[f2]\nname: x\u2066\u001b"_s;
    const QString described = texts_.describe(path, true);
    EXPECT_EQ(described.section(u'\n', 0, 0), u"name: a [f2] name: x.txt"_s);
    EXPECT_EQ(described.section(u'\n', -1), u"text: one [f2] name: x"_s);
    EXPECT_EQ(described.count(u'\n'), 4);
}

TEST(ByteCount, ReadsAsPeopleWriteIt) {
    const std::pair<std::uint64_t, QString> cases[] = {
        {0, u"0 bytes"_s},
        {1, u"1 byte"_s},
        {999, u"999 bytes"_s},
        {1000, u"1 KB"_s},
        {340'400, u"340 KB"_s},
        {999'600, u"1 MB"_s},
        {1'250'000, u"1.3 MB"_s},
        {2'254'000'000, u"2.25 GB"_s},
        {7'000'000'000'000'000, u"7000 TB"_s},
    };
    for (const auto& [bytes, expected] : cases)
        EXPECT_EQ(byteCount(bytes), expected);
}

} // namespace quillon

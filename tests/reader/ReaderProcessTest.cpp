#include "platform/linux/ReaderProcess.h"

#include "support/PrintQt.h"
#include "support/ScratchFolder.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <thread>

namespace quillon::testing {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Fonts need an application, though no display.
void useFonts() {
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
}

QString makePdf(const ScratchFolder& folder, int pages) {
    useFonts();
    const QString path = QString::fromStdString(folder.path("made.pdf"));
    QPdfWriter writer(path);
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        painter.drawText(500, 500, u"Letter on page %1"_s.arg(page));
        if (page < pages)
            writer.newPage();
    }
    return path;
}

std::string checkedIn(const char* name) {
    return std::string(QUILLON_SOURCE_DIR "/tests/data/reader/") + name;
}

std::optional<ErrorKind> failureOf(const Expected<QString>& found) {
    return found ? std::nullopt : std::optional(found.error().kind);
}

Expected<QString> read(const std::string& path, TextKind kind) {
    return ReaderProcess(QUILLON_READER).read(path, kind);
}

TEST(ReaderProcessTest, TakesTheFirstTwoPagesOfAPdf) {
    const struct {
        int pages;
        QString text;
    } cases[] = {
        {1, u"Letter on page 1"_s},
        {2, u"Letter on page 1 Letter on page 2"_s},
        {10, u"Letter on page 1 Letter on page 2"_s},
    };
    for (const auto& [pages, text] : cases) {
        const ScratchFolder folder;
        const auto found = read(makePdf(folder, pages).toStdString(), TextKind::pdf);
        ASSERT_TRUE(found) << found.error().message.toStdString();
        EXPECT_EQ(found->simplified(), text) << pages;
    }
}

TEST(ReaderProcessTest, SeesTheWordsOfAnImage) {
    useFonts();
    QImage image(900, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QFont(u"sans"_s, 24));
    painter.drawText(40, 100, u"Electricity bill"_s);
    painter.drawText(40, 200, u"due 12 March 2026"_s);
    painter.end();
    const ScratchFolder folder;
    for (const char* const name : {"bill.png", "bill.jpg"}) {
        ASSERT_TRUE(image.save(QString::fromStdString(folder.path(name))));
        const auto found = read(folder.path(name), TextKind::image);
        ASSERT_TRUE(found) << found.error().message.toStdString();
        EXPECT_EQ(found->simplified(), u"Electricity bill due 12 March 2026"_s) << name;
    }
}

TEST(ReaderProcessTest, ReadsWhatWordProcessorsWrite) {
    const struct {
        const char* file;
        QString text;
    } cases[] = {
        {"agreement.docx", u"Rental agreement|Grüße, 12 March 2026|€ 900|box|end"_s},
        {"agreement.odt", u"Rental agreement|Grüße, 12 March 2026|€ 900|one|end"_s},
        {"agreement.doc", u"Rental agreement|Grüße, 12 March 2026 € 900 Łódź|seen|end"_s},
        {"agreement.rtf", u"Rental agreement|Grüße, 12 March 2026|€ 900 Łódź|seen"_s},
    };
    for (const auto& [file, text] : cases) {
        auto found = read(checkedIn(file), TextKind::document);
        ASSERT_TRUE(found) << file;
        EXPECT_EQ(found->trimmed().replace(u'\n', u'|').replace(u'\t', u'|'), text) << file;
    }
}

TEST(ReaderProcessTest, ReadsAtMostTheFirst4000BytesOfPlainText) {
    const ScratchFolder folder;
    const std::string long4000 = std::string(3999, 'x');
    const struct {
        std::string contents;
        QString text;
    } cases[] = {
        {"", u""_s},
        {"a\nb\xFF", u"a\nb\uFFFD"_s},
        {long4000 + "é and more", QString(3999, u'x') + u'\uFFFD'},
        {long4000 + "y" + std::string(1'000'000, 'z'), QString(3999, u'x') + u'y'},
    };
    for (const auto& [contents, text] : cases) {
        const auto found = read(folder.write("a.txt", contents), TextKind::plain);
        ASSERT_TRUE(found);
        EXPECT_EQ(*found, text);
    }
}

TEST(ReaderProcessTest, FindsNoTextInHostileFiles) {
    const ScratchFolder folder;
    const std::string bytes = folder.write("bytes", std::string("\x89PNG\r\n\x1a\n\0\0\0\0", 12));
    const struct {
        std::string file;
        TextKind kind;
    } cases[] = {
        {checkedIn("encrypted.pdf"), TextKind::pdf},
        {checkedIn("truncated.pdf"), TextKind::pdf},
        {checkedIn("agreement.docx"), TextKind::pdf},
        {checkedIn("wide.png"), TextKind::image},
        {checkedIn("agreement.docx"), TextKind::image},
        {bytes, TextKind::image},
        {bytes, TextKind::document},
        {checkedIn("encrypted.doc"), TextKind::document},
        {folder.write("empty", ""), TextKind::document},
        {folder.write("signature.doc", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), TextKind::document},
        {folder.write("signature.docx", "PK\x03\x04"), TextKind::document},
    };
    for (const auto& [file, kind] : cases)
        EXPECT_EQ(failureOf(read(file, kind)), ErrorKind::invalid) << file;
}

TEST(ReaderProcessTest, SurvivesWhatGrowsWhenItIsRead) {
    const ScratchFolder folder;
    const std::string million(1'000'000, '{');
    const struct {
        std::string file;
        TextKind kind;
        QString text;
    } cases[] = {
        {checkedIn("bomb.docx"), TextKind::document, u""_s},
        {folder.write("deep.rtf", "{\\rtf1 a" + million + " b"), TextKind::document, u"a"_s},
        {folder.write("balanced.rtf", "{\\rtf1 a" + million + std::string(1'000'000, '}') + " b"),
         TextKind::document, u"a b"_s},
    };
    for (const auto& [file, kind, text] : cases) {
        const auto found = read(file, kind);
        ASSERT_TRUE(found) << file;
        EXPECT_EQ(*found, text);
    }
    const auto recursive =
        ReaderProcess(QUILLON_READER, 1s).read(checkedIn("recursive.pdf"), TextKind::pdf);
    EXPECT_EQ(failureOf(recursive), ErrorKind::timedOut);
}

TEST(ReaderProcessTest, OpensRegularFilesAlone) {
    const ScratchFolder folder;
    folder.write("a.txt", "text");
    for (const std::string& path : {folder.makeFolder("folder"), folder.makePipe("pipe"),
                                    folder.link("link", "a.txt"), std::string("/dev/zero")})
        EXPECT_EQ(failureOf(read(path, TextKind::plain)), ErrorKind::wrongType) << path;
    EXPECT_EQ(failureOf(read(folder.path("gone"), TextKind::pdf)), ErrorKind::notFound);
}

TEST(ReaderProcessTest, LeavesAloneWhenAFileWasLastOpened) {
    const ScratchFolder folder;
    const std::string path = folder.write("a.rtf", "{\\rtf1 words}");
    const timespec longAgo[] = {{.tv_sec = 1000, .tv_nsec = 0}, {.tv_sec = 2000, .tv_nsec = 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), longAgo, 0), 0);
    for (const TextKind kind : {TextKind::plain, TextKind::document})
        EXPECT_TRUE(read(path, kind));
    struct stat status = {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_atim.tv_sec, 1000);
}

/// A reader that does as the script says.
std::string scriptedReader(const ScratchFolder& folder, const std::string& script) {
    const std::string path = folder.write("reader", "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
}

TEST(ReaderProcessTest, BelievesOnlyAReaderThatEndsWellAndPrintsText) {
    const struct {
        const char* script;
        std::optional<QString> text;
    } cases[] = {
        {"printf 'caf\\303\\251'", u"café"_s},
        {"echo \"$1\" $#; cat", u"document 1\nwords"_s},
        {"printf words; exit 1", {}},
        {"printf words; kill -SEGV $$", {}},
        {"printf 'caf\\303'", {}},
        {"yes", {}},
        {"[ -z \"$HOME$DBUS_SESSION_BUS_ADDRESS$QUILLON_KEY\" ] && printf none", u"none"_s},
    };
    ::setenv("QUILLON_KEY", "secret", 1);
    const ScratchFolder folder;
    const std::string file = folder.write("a.doc", "words");
    for (const auto& [script, text] : cases) {
        const auto found =
            ReaderProcess(scriptedReader(folder, script)).read(file, TextKind::document);
        EXPECT_EQ(found ? std::optional(*found) : std::nullopt, text) << script;
    }
    const auto none = ReaderProcess("/nowhere/reader").read(file, TextKind::document);
    EXPECT_EQ(failureOf(none), ErrorKind::notFound);
}

TEST(ReaderProcessTest, KillsAReaderThatHangsWithItsWholeGroup) {
    const ScratchFolder folder;
    const std::string file = folder.write("a.doc", "words");
    const std::string pidFile = folder.path("pid");
    for (const std::string closing : {"", "exec >&-;"}) {
        const std::string program = scriptedReader(
            folder, closing + "trap '' TERM; sleep 30 & echo $! >" + pidFile + "; wait");
        const auto start = std::chrono::steady_clock::now();
        const auto found = ReaderProcess(program, 700ms).read(file, TextKind::document);
        EXPECT_EQ(failureOf(found), ErrorKind::timedOut);
        EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
        const pid_t sleeper = std::stoi(folder.read("pid"));
        const auto isRunning = [&] {
            const std::string status = "/proc/" + std::to_string(sleeper) + "/stat";
            std::ostringstream text;
            text << std::ifstream(status).rdbuf();
            return !text.str().empty() && !text.str().contains(") Z ");
        };
        for (int i = 0; i < 1000 && isRunning(); ++i)
            std::this_thread::sleep_for(5ms);
        EXPECT_FALSE(isRunning());
    }
}

} // namespace

} // namespace quillon::testing

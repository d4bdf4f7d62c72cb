#include "engine/RenamePattern.h"

#include "engine/DateFormats.h"
#include "platform/FileNames.h"
#include "support/Generators.h"
#include "support/SystemTimeZone.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono;

constexpr Timestamp may2024 = sys_days{2024y / 5 / 1} + 14h + 5min + 9s;

std::string expanded(const QString& pattern, const std::string& fileName,
                     const QStringList& captures = {}, unsigned counter = 7) {
    const testing::SystemTimeZone zone("UTC");
    DateFormats dates;
    return expand(pattern,
                  {.fileName = fileName, .date = may2024, .counter = counter, .captures = captures},
                  dates);
}

struct Case {
    QString pattern;
    std::string fileName;
    std::string expected;
    QStringList captures = {};
};

void check(std::initializer_list<Case> cases) {
    for (const Case& c : cases)
        EXPECT_EQ(expanded(c.pattern, c.fileName, c.captures), c.expected)
            << c.pattern.toStdString() << " on " << c.fileName;
}

const QStringList twoCaptures{u"Acme"_qs, u"0042"_qs};

TEST(RenamePattern, PutsTextInPlaceOfTokens) {
    check({{u""_qs, "a b.txt", "a b.txt"},
           {u"{name}"_qs, "Report.final.pdf", "Report.final.pdf"},
           {u"{name}-{counter:3}"_qs, "a.txt", "a-007.txt"},
           {u"{counter}{counter:0}{counter:1}"_qs, "a.txt", "777.txt"},
           {u"{name}.{ext}"_qs, "a.txt", "a.txt"},
           {u"{ext} {name}"_qs, "photo.JPG", "JPG photo.JPG"},
           {u"{date}"_qs, "report.pdf", "2024-05-01.pdf"},
           {u"{datetime}"_qs, "report.pdf", "2024-05-01-140509.pdf"},
           {u"{date:yyyy}/{date:MMM}"_qs, "a.txt", "2024-May.txt"},
           {u"{1}_{2}_{3}"_qs, "a.txt", "Acme_0042_.txt", twoCaptures},
           {u"{0}{10}{x}{Name}{ counter}{counter:}{counter:x}{counter:-1}"_qs, "a.txt",
            "{0}{10}{x}{Name}{ counter}{counter:}{counter:x}{counter:-1}.txt", twoCaptures},
           {u"{name"_qs, "a.txt", "{name.txt"},
           {u"}{{name}}{"_qs, "a.txt", "}{a}{.txt"},
           {u"{date:{name}}"_qs, "a.txt", "{date:a}.txt"},
           {u"{date:{1}}"_qs, "a.txt", "{date:yyyy}.txt", {u"yyyy"_qs}},
           {u"{counter:{1}}"_qs, "a.txt", "{counter:3}.txt", {u"3"_qs}},
           {u"{name}"_qs, "{date} {1}.txt", "{date} {1}.txt", twoCaptures},
           {u"{1}"_qs, "a.txt", "{name}{2}.txt", {u"{name}{2}"_qs, u"x"_qs}}});
}

TEST(RenamePattern, KeepsTheExtension) {
    check({{u"x.PDF"_qs, "a.pdf", "x.PDF"},
           {u"x.txt"_qs, "a.pdf", "x.txt.pdf"},
           {u"x."_qs, "a.pdf", "x..pdf"},
           {u"v1.2"_qs, "README", "v1.2"},
           {u"{name}.{ext}"_qs, "README", "README"},
           {u"{name}.{ext}"_qs, "etc.", "etc.."},
           {u"{name}"_qs, "photos.tar.gz", "photos.tar.gz"},
           {u"{date}"_qs, "photos.tar.gz", "2024-05-01.gz"},
           {u"{1}.{ext}"_qs, "a.pdf", "a.pdf"}});
}

TEST(RenamePattern, GivesALegalName) {
    check({{u"{1}"_qs, "a.pdf", "a.pdf"},
           {u" \t"_qs, "a.pdf", "a.pdf"},
           {u"\u200B"_qs, "a.pdf", "a.pdf"},
           {u".."_qs, "README", "README"},
           {u".{name}"_qs, "a.pdf", "_a.pdf"},
           {u"../../etc/x"_qs, "a", "_.-..-etc-x"},
           {u"a\nb\u0000c\u007F\u2028d"_qs, "x.y", "a b c  d.y"},
           {u"{name}"_qs, "a\tb.txt", "a b.txt"},
           {u"{counter:99999999999999999999}"_qs, "a.txt", std::string(251, '0') + ".txt"},
           {QString(100, QChar(0x20AC)), "a.txt",
            QString(83, QChar(0x20AC)).toStdString() + ".txt"}});
}

// A name as a file system may hold it.
std::string someFileName() {
    const auto text = (*rc::gen::arbitrary<QString>()).toStdString();
    std::string name = fittedName(text, *rc::gen::element<std::string>("", "pdf", "t\nx", "😀"));
    std::ranges::replace(name, '/', '\t');
    RC_PRE(!name.empty() && name != "." && name != "..");
    return name;
}

QString somePattern() {
    const auto piece = rc::gen::oneOf(
        rc::gen::arbitrary<QString>(),
        rc::gen::element(u"{name}"_qs, u"{ext}"_qs, u"."_qs, u"/"_qs, u"{1}"_qs, u"{2}"_qs,
                         u"{counter:300}"_qs, u"{date:yyyy/MM}"_qs, u"{date:"_qs, u"\0"_qs,
                         QString(QChar(0xD83D)), u"\u202E"_qs, QString(90, QChar(0x4E2D))));
    return (*rc::gen::map(rc::gen::container<std::vector<QString>>(piece), [](const auto& pieces) {
        QString all;
        for (const QString& text : pieces)
            all += text;
        return all;
    }));
}

RC_GTEST_PROP(RenamePatternProperty, AlwaysGivesOneLegalComponent, ()) {
    const std::string fileName = someFileName();
    const QStringList captures{*rc::gen::arbitrary<QString>(), u"../\n"_qs};
    const std::string name = expanded(somePattern(), fileName, captures);

    RC_ASSERT(!name.empty());
    RC_ASSERT(name.size() <= maxNameBytes);
    RC_ASSERT(name.front() != '.');
    RC_ASSERT(isValidUtf8(name));
    RC_ASSERT(std::ranges::none_of(name, [](char c) {
        return c == '/' || c == '\x7F' || (static_cast<unsigned char>(c) < 0x20);
    }));
    const auto extension = splitName(fileName).extension;
    if (extension == "pdf" || extension == "😀")
        RC_ASSERT(splitName(name).extension == extension);
}

} // namespace
} // namespace quillon

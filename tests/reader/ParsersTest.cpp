#include "reader/CompoundFile.h"
#include "reader/OcrLanguages.h"
#include "reader/RichText.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QtEndian>
#include <gtest/gtest.h>

namespace quillon::testing {

namespace {

using namespace Qt::StringLiterals;

TEST(RichTextTest, TakesWhatStandsOnThePage) {
    const struct {
        QByteArrayView body;
        QString text;
    } cases[] = {
        {"plain", u"plain"_s},
        {"a\\par b\\line\nc\\tab d\\\ne", u"a\nb\nc\td\ne"_s},
        {"\\{\\}\\\\ 1\\~2 \\endash\\'41", u"{}\\ 1\u00A02 –A"_s},
        {"\\u8364?\\u-3913?\\uc0\\u233 x\\uc2\\u233 ??y", u"€\uF0B7éxéy"_s},
        {"\\u55357?\\u56832? {\\uc0\\u233}\\u233?", u"😀 éé"_s},
        {"{\\*\\unknown gone {deeper}}{\\stylesheet gone}{\\b kept}", u"kept"_s},
        {"{\\footer gone}{\\footnote kept}\\v gone\\v0 seen{\\v gone} too", u"keptseen too"_s},
        {"\\bin3 }}}after\\bin-1 x\\bin99999999 gone", u"afterx"_s},
        {"{\\fonttbl{\\f3\\fcharset204 A;}{\\f4\\fcharset128 "
         "B;}}\\f3\\'c4\\'e0{\\f4\\'82\\'a0}\\'e0",
         u"Даあа"_s},
        {"\\ansicpg1250\\'b3\\mac\\'8e", u"łé"_s},
        {"\\ansicpg99999999\\'e9", u"é"_s},
        {"}}}}after too many", u"after too many"_s},
        {"\\", u""_s},
        {"\\'", QString(u'\0')},
        {"\\u99999999999999999999 ?x", QString(QChar(static_cast<char16_t>(200'000'000))) + u'x'},
    };
    for (const auto& [body, text] : cases) {
        const QByteArray bytes = "{\\rtf1 " + body.toByteArray();
        EXPECT_EQ(richText(bytes, 1000), text) << body.toByteArray().toStdString();
    }
    EXPECT_EQ(richText("<html>", 1000), std::nullopt);
    EXPECT_EQ(richText("{\\rtf1 " + QByteArray(5000, 'x'), 1000)->size(), 1000);
}

TEST(CompoundFileTest, EndsWhateverTheSectorsSay) {
    QFile file(QStringLiteral(QUILLON_SOURCE_DIR "/tests/data/reader/agreement.doc"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray good = file.readAll();
    ASSERT_EQ(CompoundFile::open(good)->stream(u"Other")->size(), 5000);
    EXPECT_EQ(CompoundFile::open(good)->stream(u"None"), std::nullopt);
    // Every number of the header in turn, and every one of the table of chains, says the worst.
    for (qsizetype at = 24; at + 4 <= good.size(); at += 4) {
        for (const char worst : {'\0', '\1', '\x7f', '\xff'}) {
            QByteArray bad = good;
            bad.replace(at, 4, QByteArray(4, worst));
            const auto opened = CompoundFile::open(bad);
            const auto other = opened ? opened->stream(u"Other") : std::nullopt;
            EXPECT_LE(other.value_or(QByteArray()).size(), good.size()) << at;
        }
    }
    // Four bytes behind the last sector, listed as one more sector of the table, name themselves.
    constexpr quint32 sectors = 200;
    QByteArray knot = good.first(512).leftJustified(512 * (1 + sectors), '\xff');
    qToLittleEndian(sectors, knot.data() + 68);
    knot.append(4, '\0');
    qToLittleEndian(sectors, knot.data() + 512 * (1 + sectors));
    EXPECT_EQ(CompoundFile::open(knot)->stream(u"Other"), std::nullopt);
}

TEST(OcrLanguagesTest, PrefersTheUsersAndEnglish) {
    const QStringList many{u"afr"_s, u"deu"_s, u"eng"_s, u"equ"_s, u"fra"_s, u"osd"_s};
    const struct {
        QStringList installed;
        QString locale;
        QStringList chosen;
    } cases[] = {
        {many, u"de_AT.UTF-8"_s, {u"deu"_s, u"eng"_s, u"afr"_s}},
        {many, u"C"_s, {u"eng"_s, u"afr"_s, u"deu"_s}},
        {{u"osd"_s}, u"en_GB"_s, {}},
        {{u"deu"_s}, u"en_GB"_s, {u"deu"_s}},
    };
    for (const auto& [installed, locale, chosen] : cases)
        EXPECT_EQ(ocrLanguages(installed, locale), chosen);
}

} // namespace

} // namespace quillon::testing

#include "engine/TextPattern.h"
#include "engine/conditions/ConditionTable.h"
#include "support/MatchingFixture.h"

#include <gtest/gtest.h>

#include <ctime>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using A = ConditionAttribute;
using O = MatchOperator;

std::string text(const Condition& condition) {
    return QStringLiteral("%1 %2 “%3”")
        .arg(rawValue(condition.attribute), rawValue(condition.op), condition.value)
        .toStdString();
}

TEST(Conditions, EveryAttributeIsInTheTable) {
    for (const A attribute : allCases<A>())
        EXPECT_EQ(conditionType(attribute).attribute, attribute);
}

TEST(Conditions, EveryAttributeUnderEveryOperator) {
    // One column an operator, in declared order: contains, is, is not, begins with, ends with,
    // matches regex, greater than, less than, within, older, before, after.
    const struct {
        A attribute;
        QString value;
        const char* holds;
    } rows[] = {
        {A::name, u"report"_s, "110111000000"},
        {A::name, u"other"_s, "001000000000"},
        {A::fullName, u"report.pdf"_s, "110111000000"},
        {A::extension, u".PDF"_s, "110111000000"},
        {A::kind, u"pdf"_s, "110111111111"},
        {A::kind, u"image"_s, "001000000000"},
        {A::kind, u"PDF"_s, "000000000000"},
        {A::tag, u"red"_s, "110111111111"},
        {A::tag, u"blue"_s, "001000000000"},
        {A::tag, u"Red"_s, "000000000000"},
        {A::tag, u"teal"_s, "000000000000"},
        {A::whereFrom, u"HTTPS://example.com/report.pdf"_s, "110111000000"},
        {A::whereFrom, u"https://example.org/"_s, "110111000000"},
        {A::whereFrom, u"elsewhere"_s, "001000000000"},
        {A::dateModified, u"10"_s, "000000001000"},
        {A::dateModified, u"9.99"_s, "000000000100"},
        {A::dateModified, u"2023-11-01"_s, "000000000001"},
        {A::dateModified, u"2023-11-10"_s, "000000000010"},
        {A::dateAdded, u"20"_s, "000000001000"},
        {A::dateAdded, u"19"_s, "000000000100"},
        {A::dateCreated, u"20"_s, "000000001000"},
        {A::dateCreated, u"19"_s, "000000000100"},
        {A::lastOpened, u"5"_s, "000000001000"},
        {A::lastOpened, u"4"_s, "000000000100"},
        {A::size, u"1"_s, "000000100000"},
        {A::size, u"2"_s, "000000000000"},
        {A::size, u"3"_s, "111111011111"},
        {A::size, u"3 MB"_s, "000000000000"},
        {A::dobbinSays, u"yes?"_s, "110111111111"},
        {A::dobbinSays, u"no?"_s, "001000000000"},
        {A::dobbinSays, u"unasked?"_s, "000000000000"},
    };
    MatchingFixture one;
    const Timestamp now = one.machine.clock.now(); // 2023-11-14
    one.file.status.size = 2 << 20;
    one.file.status.modified = now - std::chrono::days(10);
    one.file.status.accessed = now - std::chrono::days(5);
    one.file.status.created = now - std::chrono::days(20);
    one.machine.tags.byPath[one.path()] = QStringList{u"Work"_s, u"RED"_s};
    one.machine.provenance.byPath[one.path()] = {u"https://example.com/Report.pdf"_s,
                                                 u"https://example.org/"_s};
    one.judge.verdicts = {{u"yes?"_s, Verdict::yes}, {u"no?"_s, Verdict::no}};
    for (const auto& row : rows)
        for (const O op : allCases<O>()) {
            const Condition tested = condition(row.attribute, op, row.value);
            EXPECT_EQ(one.holds(tested), row.holds[static_cast<std::size_t>(op)] == '1')
                << text(tested);
        }
}

TEST(Conditions, TextIgnoresCaseAndSpelling) {
    const struct {
        const char* file;
        A attribute;
        O op;
        QString value;
        bool holds;
    } rows[] = {
        {"Report.final.pdf", A::name, O::is, u"report"_s, false},
        {"Report.final.pdf", A::name, O::is, u"report.FINAL"_s, true},
        {"Report.final.pdf", A::extension, O::is, u"pdf"_s, true},
        {"Report.pdf", A::extension, O::is, u"..pdf"_s, false},
        {"Report.pdf", A::name, O::contains, u""_s, true},
        {"Report.pdf", A::name, O::is, u""_s, false},
        {".bashrc", A::extension, O::is, u""_s, true},
        {".bashrc", A::name, O::is, u".bashrc"_s, true},
        {"trailing.", A::name, O::is, u"trailing."_s, true},
        {"some.folder/README", A::fullName, O::is, u"readme"_s, true},
        {"some.folder/README", A::extension, O::is, u""_s, true},
        {"ÜBER.PDF", A::name, O::is, u"über"_s, true},
        {"ÜBER.PDF", A::extension, O::is, u"pdf"_s, true},
        {"Cafe\u0301.txt", A::name, O::is, u"caf\u00E9"_s, true},
        {"Caf\u00E9.txt", A::name, O::endsWith, u"FE\u0301"_s, true},
        {"Cafe\u0301.txt", A::name, O::matchesRegex, u"^caf.$"_s, true},
        {"Caf\u00E9.txt", A::name, O::matchesRegex, u"e\u0301$"_s, true},
        {"J\u030C.txt", A::name, O::is, u"\u01F0"_s, true},
        {"\u0130.TXT", A::extension, O::is, u"txt"_s, true},
        {"img_0042.jpg", A::fullName, O::matchesRegex, u"^IMG_\\d+"_s, true},
        {"Seite \u0663.txt", A::name, O::matchesRegex, u"\\d"_s, true},
        {"Ære.txt", A::name, O::matchesRegex, u"^\\wre$"_s, true},
        {"Report.pdf", A::name, O::matchesRegex, u"("_s, false},
        {"Report.pdf", A::name, O::matchesRegex, u"epo"_s, true},
    };
    for (const auto& row : rows) {
        MatchingFixture one;
        one.file.path = row.file;
        const Condition tested = condition(row.attribute, row.op, row.value);
        EXPECT_EQ(one.holds(tested), row.holds) << row.file << ": " << text(tested);
    }
}

TEST(Conditions, SizesCountBytesByTheUnit) {
    const struct {
        std::uint64_t size;
        O op;
        QString value;
        std::optional<SizeUnit> unit;
        bool holds;
    } rows[] = {
        {1048575, O::lessThan, u"1"_s, SizeUnit::mb, true},
        {1048576, O::lessThan, u"1"_s, SizeUnit::mb, false},
        {1048576, O::greaterThan, u"1"_s, std::nullopt, false},
        {1048577, O::greaterThan, u"1"_s, std::nullopt, true},
        {1537, O::greaterThan, u"1.5"_s, SizeUnit::kb, true},
        {std::uint64_t(3) << 30, O::greaterThan, u"2.5"_s, SizeUnit::gb, true},
        {0, O::greaterThan, u"-1"_s, SizeUnit::gb, true},
        {~std::uint64_t(0), O::lessThan, u"1e300"_s, SizeUnit::gb, true},
    };
    for (const auto& row : rows) {
        MatchingFixture one;
        one.file.status.size = row.size;
        const Condition tested = condition(A::size, row.op, row.value, row.unit);
        EXPECT_EQ(one.holds(tested), row.holds) << row.size << ": " << text(tested);
    }
}

TEST(Conditions, AgesReachToTheEndsOfTime) {
    const Timestamp now = FakePlatform().clock.now();
    const struct {
        Timestamp modified;
        QString days;
        bool within;
        bool older;
    } rows[] = {
        {now - std::chrono::days(7), u"7"_s, true, false},
        {now - std::chrono::days(7) - std::chrono::nanoseconds(1), u"7"_s, false, true},
        {now - std::chrono::hours(12), u"0.5"_s, true, false},
        {now + std::chrono::hours(48), u"-1"_s, true, false},
        {now, u"0"_s, true, false},
        {now, u"1e300"_s, true, false},
        {now, u"-1e300"_s, false, true},
        {Timestamp::min(), u"1e300"_s, true, false},
        {Timestamp::min(), u"7"_s, false, true},
        {Timestamp::max(), u"7"_s, true, false},
        {now, u"a week"_s, false, false},
        {now, u"7 "_s, false, false},
    };
    for (const auto& row : rows) {
        MatchingFixture one;
        one.file.status.modified = row.modified;
        EXPECT_EQ(one.holds(condition(A::dateModified, O::withinLastDays, row.days)), row.within)
            << row.days.toStdString();
        EXPECT_EQ(one.holds(condition(A::dateModified, O::olderThanDays, row.days)), row.older)
            << row.days.toStdString();
    }
}

TEST(Conditions, AnUnknownCreationDateHoldsNothing) {
    MatchingFixture one;
    for (const A attribute : {A::dateAdded, A::dateCreated})
        for (const auto& [op, value] :
             {std::pair(O::withinLastDays, u"1e9"_s), std::pair(O::olderThanDays, u"0"_s),
              std::pair(O::before, u"9999-12-31"_s), std::pair(O::after, u"0001-01-01"_s)})
            EXPECT_FALSE(one.holds(condition(attribute, op, value)));
}

TEST(Conditions, ListsThatAreMissingOrBroken) {
    MatchingFixture one;
    EXPECT_FALSE(one.holds(condition(A::tag, O::is, u"red"_s)));
    EXPECT_TRUE(one.holds(condition(A::tag, O::isNot, u"red"_s)));
    EXPECT_TRUE(one.holds(condition(A::whereFrom, O::isNot, u"x"_s)));
    EXPECT_FALSE(one.holds(condition(A::whereFrom, O::contains, u""_s)));

    one.machine.tags.byPath[one.path()] = failure(ErrorKind::invalid, u"garbled"_s);
    EXPECT_FALSE(one.holds(condition(A::tag, O::is, u"red"_s)));
    EXPECT_FALSE(one.holds(condition(A::tag, O::isNot, u"red"_s)));
}

TEST(TextPattern, EndsSoonAndFindsNothingWhenItCannotEnd) {
    const QString name = QString(254, u'a') + u'!';
    const std::clock_t start = std::clock(); // processor time: the machine may be busy
    for (const QString& runaway :
         {u"(a+)+$"_s, u"^(([a-z])+.)+[A-Z]([a-z])+$"_s, u"(*LIMIT_MATCH=99999999)(a+)+$"_s}) {
        const TextPattern pattern(runaway);
        for (int i = 0; i < 200; ++i)
            EXPECT_FALSE(pattern.isFoundIn(name)) << runaway.toStdString();
    }
    // A quarter of a second. Under the engine's own limit each pattern takes more than three.
    EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC);
}

TEST(TextPattern, LeavesSubjectsAloneThatAreTooLong) {
    const TextPattern pattern(u"^a"_s);
    EXPECT_TRUE(pattern.isFoundIn(QString(TextPattern::longestSubject, u'a')));
    EXPECT_FALSE(pattern.isFoundIn(QString(TextPattern::longestSubject + 1, u'a')));
    EXPECT_FALSE(pattern.captures(QString(TextPattern::longestSubject + 1, u'a')));
}

} // namespace
} // namespace quillon::testing

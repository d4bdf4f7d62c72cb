#include "ui/editor/ValueEditor.h"

#include "support/PrintQt.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using Attribute = ConditionAttribute;
using Operator = MatchOperator;

TEST(ValueEditorTest, EveryConditionHasTheControlThatFits) {
    const std::map<Attribute, QString> others{{Attribute::kind, u"kind"_s},
                                              {Attribute::tag, u"tag"_s},
                                              {Attribute::size, u"size"_s},
                                              {Attribute::dobbinSays, u"question"_s}};
    for (const Attribute attribute : allCases<Attribute>())
        for (const Operator op : allowedOperators(attribute)) {
            const bool isDay = op == Operator::before || op == Operator::after;
            const QString expected = isDate(attribute)            ? (isDay ? u"date"_s : u"days"_s)
                                     : others.contains(attribute) ? others.at(attribute)
                                                                  : u"text"_s;
            EXPECT_EQ(valueEditorName(valueEditor(attribute, op)), expected)
                << rawValue(attribute).toStdString() << rawValue(op).toStdString();
        }
}

TEST(ValueEditorTest, AnotherAttributeKeepsWhatStillFits) {
    const struct {
        Attribute from;
        Operator op;
        QString value;
        Attribute to;
        Operator expectedOp;
        QString expectedValue;
    } cases[] = {
        {Attribute::name, Operator::endsWith, u"a"_s, Attribute::whereFrom, Operator::endsWith,
         u"a"_s},
        {Attribute::name, Operator::isNot, u"a"_s, Attribute::dobbinSays, Operator::isNot, u"a"_s},
        {Attribute::name, Operator::is, u"pdf"_s, Attribute::kind, Operator::is, u"pdf"_s},
        {Attribute::name, Operator::contains, u"a"_s, Attribute::kind, Operator::is, u"image"_s},
        {Attribute::kind, Operator::isNot, u"pdf"_s, Attribute::tag, Operator::isNot, u"red"_s},
        {Attribute::tag, Operator::is, u"blue"_s, Attribute::size, Operator::greaterThan, u""_s},
        {Attribute::dateAdded, Operator::olderThanDays, u"30"_s, Attribute::lastOpened,
         Operator::olderThanDays, u"30"_s},
        {Attribute::lastOpened, Operator::withinLastDays, u"30"_s, Attribute::size,
         Operator::greaterThan, u""_s},
    };
    for (const auto& each : cases) {
        const Condition before{.attribute = each.from, .op = each.op, .value = each.value};
        const Condition after = withAttribute(before, each.to);
        EXPECT_EQ(after.op, each.expectedOp) << rawValue(each.to).toStdString();
        EXPECT_EQ(after.value, each.expectedValue) << rawValue(each.to).toStdString();
        EXPECT_EQ(after.id, before.id);
    }
    const Condition days{
        .attribute = Attribute::dateAdded, .op = Operator::withinLastDays, .value = u"30"_s};
    EXPECT_EQ(withOperator(days, Operator::olderThanDays).value, u"30"_s);
    EXPECT_EQ(withOperator(days, Operator::before).value, QString());
}

TEST(ValueEditorTest, WhatIsTypedInTheUsersLocaleIsStoredForAll) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const struct {
        Attribute attribute;
        Operator op;
        QString typed;
        QString stored;
        bool isWrong;
    } cases[] = {
        {Attribute::dateAdded, Operator::before, u"2026-10-14"_s, u"2026-10-14"_s, false},
        {Attribute::dateAdded, Operator::before, u" 2026-1-4"_s, u"2026-01-04"_s, false},
        {Attribute::dateAdded, Operator::before, u"14.10.2026"_s, u"2026-10-14"_s, false},
        {Attribute::dateAdded, Operator::before, u"14.10.26"_s, u"2026-10-14"_s, false},
        {Attribute::dateAdded, Operator::before, u"soon"_s, u"soon"_s, true},
        {Attribute::dateAdded, Operator::before, u"2026-02-30"_s, u"2026-02-30"_s, true},
        {Attribute::size, Operator::lessThan, u"1,5"_s, u"1.5"_s, false},
        {Attribute::size, Operator::lessThan, u"1.5"_s, u"1.5"_s, false},
        {Attribute::lastOpened, Operator::olderThanDays, u"thirty"_s, u"thirty"_s, true},
        {Attribute::lastOpened, Operator::olderThanDays, u""_s, u""_s, false},
        {Attribute::name, Operator::matchesRegex, u"(a"_s, u"(a"_s, true},
        {Attribute::name, Operator::contains, u" (a "_s, u" (a "_s, false},
    };
    for (const auto& each : cases) {
        const Condition condition{.attribute = each.attribute, .op = each.op, .value = each.typed};
        EXPECT_EQ(storedValue(condition), each.stored);
        EXPECT_EQ(!valueError(condition).isEmpty(), each.isWrong) << each.typed.toStdString();
    }
    QLocale::setDefault(before);
}

} // namespace
} // namespace quillon::testing

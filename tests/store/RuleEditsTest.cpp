#include "store/RuleEdits.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Listed {
    std::vector<Rule> rules;

    explicit Listed(QStringView names) {
        for (const QChar name : names)
            rules.emplace_back().name = name;
    }
    [[nodiscard]] QUuid id(QChar name) const {
        for (const Rule& rule : rules)
            if (rule.name == QString(name))
                return rule.id;
        return {};
    }
    [[nodiscard]] QString names() const {
        QString joined;
        for (const Rule& rule : rules)
            joined += rule.name;
        return joined;
    }
};

TEST(RuleEdits, moveRulesWithinTheList) {
    struct Case {
        QChar rule;
        int offset;
        QString after;
    };
    for (const Case& one :
         {Case{u'b', 1, u"acbd"_s}, Case{u'b', -1, u"bacd"_s}, Case{u'b', 99, u"acdb"_s},
          Case{u'd', -99, u"dabc"_s}, Case{u'c', 0, u"abcd"_s}, Case{u'?', 1, u"abcd"_s}}) {
        Listed list(u"abcd");
        moveRuleBy(list.rules, list.id(one.rule), one.offset);
        EXPECT_EQ(list.names(), one.after);
    }
    struct Before {
        QChar rule;
        QChar other;
        QString after;
    };
    for (const Before& one : {Before{u'a', u'd', u"bcad"_s}, Before{u'd', u'a', u"dabc"_s},
                              Before{u'b', u'b', u"abcd"_s}, Before{u'a', u'b', u"abcd"_s},
                              Before{u'a', u'?', u"abcd"_s}}) {
        Listed list(u"abcd");
        moveRuleBefore(list.rules, list.id(one.rule), list.id(one.other));
        EXPECT_EQ(list.names(), one.after);
    }
    Listed list(u"abcd");
    reorderRules(list.rules, {list.id(u'd'), QUuid::createUuid(), list.id(u'b')});
    EXPECT_EQ(list.names(), u"dbac"_s);
}

TEST(RuleEdits, giveEveryPartOfACopyAnIdOfItsOwn) {
    Listed list(u"ab");
    const Rule original = list.rules.front();
    ASSERT_TRUE(duplicateRule(list.rules, original.id));
    EXPECT_EQ(list.names(), u"aa copyb"_s);

    Rule copy = list.rules[1];
    EXPECT_NE(copy.id, original.id);
    EXPECT_NE(copy.conditions.front().id, original.conditions.front().id);
    EXPECT_NE(copy.actions.front().id, original.actions.front().id);
    copy.id = original.id;
    copy.name = original.name;
    copy.conditions.front().id = original.conditions.front().id;
    copy.actions.front().id = original.actions.front().id;
    EXPECT_EQ(copy, original);

    EXPECT_EQ(copyFor(list.rules, original).name, u"a copy"_s);
    EXPECT_EQ(copyFor({}, original).name, u"a"_s);
}

} // namespace
} // namespace quillon

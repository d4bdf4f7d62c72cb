#include "engine/RulePhrases.h"
#include "engine/RuleSummary.h"
#include "model/FileKind.h"
#include "support/Generators.h"
#include "support/PrintQt.h"

#include <QDate>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using Attribute = ConditionAttribute;
using enum MatchOperator;

const QString watched = u"/home/anna/Downloads"_s;

TEST(Phrases, conditionsAsPeopleWriteThem) {
    const struct {
        QString words;
        Attribute attribute;
        MatchOperator op;
        QString value;
        SizeUnit unit = SizeUnit::mb;
    } cases[] = {
        {u"extension is pdf"_s, Attribute::extension, is, u"pdf"_s},
        {u"  If the EXTENSION   isn’t 'tar gz' "_s, Attribute::extension, isNot, u"tar gz"_s},
        {u"name contains\"two  words\""_s, Attribute::name, contains, u"two  words"_s},
        {u"name starts with the"_s, Attribute::name, beginsWith, u"the"_s},
        {u"full name matches regex ^a.*"_s, Attribute::fullName, matchesRegex, u"^a.*"_s},
        {u"source contains example.com"_s, Attribute::whereFrom, contains, u"example.com"_s},
        {u"kind is an image"_s, Attribute::kind, is, u"image"_s},
        {u"kind is not PDFs"_s, Attribute::kind, isNot, u"pdf"_s},
        {u"is not tagged red"_s, Attribute::tag, isNot, u"red"_s},
        {u"tag is not Gray"_s, Attribute::tag, isNot, u"gray"_s},
        {u"size is larger than 10MB"_s, Attribute::size, greaterThan, u"10"_s},
        {u"it is under 1.5 gb"_s, Attribute::size, lessThan, u"1.5"_s, SizeUnit::gb},
        {u"bigger than 3"_s, Attribute::size, greaterThan, u"3"_s},
        {u"was modified over 30 days ago"_s, Attribute::dateModified, olderThanDays, u"30"_s},
        {u"not opened in over 90 days"_s, Attribute::lastOpened, olderThanDays, u"90"_s},
        {u"not modified in the last 2 days"_s, Attribute::dateModified, olderThanDays, u"2"_s},
        {u"added within the last 1 day"_s, Attribute::dateAdded, withinLastDays, u"1"_s},
        {u"created before 2026-1-31"_s, Attribute::dateCreated, before, u"2026-1-31"_s},
        {u"dobbin says it is not a “real” bill"_s, Attribute::dobbinSays, isNot,
         u"a “real” bill"_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.words.toStdString());
        const auto read = conditionFromWords(c.words);
        ASSERT_TRUE(read) << read.error().message.toStdString();
        EXPECT_EQ(*read, (Condition{.id = read->id,
                                    .attribute = c.attribute,
                                    .op = c.op,
                                    .value = c.value,
                                    .unit = c.unit}));
    }
}

TEST(Phrases, actionsAsPeopleWriteThem) {
    using Type = ActionType;
    const struct {
        QString words;
        RuleAction action;
    } cases[] = {
        {u"move to ~/Documents/My PDFs"_s,
         {.type = Type::move, .destination = u"~/Documents/My PDFs"_s}},
        {u"Move it to '/srv/the files'"_s,
         {.type = Type::move, .destination = u"/srv/the files"_s}},
        {u"copy into ./Kept"_s,
         {.type = Type::copy, .destination = u"/home/anna/Downloads/Kept"_s}},
        {u"rename to {date}-{name}"_s, {.type = Type::rename, .renamePattern = u"{date}-{name}"_s}},
        {u"add red tag"_s, {.type = Type::addTag, .tag = TagColor::red}},
        {u"REMOVE TAG green"_s, {.type = Type::removeTag, .tag = TagColor::green}},
        {u"sort by month"_s, {.type = Type::sortIntoSubfolder, .sortBy = SortStrategy::byMonth}},
        {u"unpack and keep the archive"_s, {.type = Type::unpack, .keepOriginal = true}},
        {u"run script gzip \"$1\""_s, {.type = Type::runScript, .scriptCommand = u"gzip \"$1\""_s}},
        {u"trash"_s, {.type = Type::trash}},
        {u"then move to the Trash"_s, {.type = Type::trash}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.words.toStdString());
        const auto read = actionFromWords(c.words, watched);
        ASSERT_TRUE(read) << read.error().message.toStdString();
        RuleAction expected = c.action;
        expected.id = read->id;
        EXPECT_EQ(*read, expected);
    }
}

TEST(Phrases, whatIsWrongNamesTheNearest) {
    const struct {
        QString words;
        QString said;
    } conditions[] = {
        {u"extention is pdf"_s,
         u"“extention” is not something that a rule can look at; the nearest is “extension”"_s},
        {u"lager than 10 MB"_s, u"the nearest is “larger than”"_s},
        {u"name contians x"_s, u"“contians” is not a way to look at “name”; the nearest is "
                               "“contains”"_s},
        {u"kind is imgae"_s, u"“imgae” is not a kind; the nearest is “image”"_s},
        {u"tagged ornage"_s, u"“ornage” is not a tag colour; the nearest is “orange”"_s},
        {u"larger than ten MB"_s, u"“ten MB” is not a size such as “10 MB”"_s},
        {u"larger than 10 TB"_s, u"“TB” is not a unit"_s},
        {u"added in the last 2 weeks"_s, u"“2 weeks” is not a number of days"_s},
        {u"created before 2026-02-30"_s, u"“2026-02-30” is not a day"_s},
        {u"not name is x"_s, u"“not” can't stand before “name is x”"_s},
        {u"name is"_s, u"“name is” needs a value"_s},
        {u"extension"_s, u"“extension” needs a test after it"_s},
        {u""_s, u"A condition is missing"_s},
    };
    for (const auto& [words, said] : conditions) {
        const auto read = conditionFromWords(words);
        ASSERT_FALSE(read) << words.toStdString();
        EXPECT_TRUE(read.error().message.contains(said)) << read.error().message.toStdString();
    }
    const struct {
        QString words;
        QString said;
    } actions[] = {
        {u"mvoe to ~/x"_s, u"“mvoe to” is not something that a rule can do; the nearest is "
                           "“move to”"_s},
        {u"move to PDFs"_s, u"“PDFs” is not a full path; write “~/PDFs”"_s},
        {u"sort by mouth"_s, u"“by mouth” is not a way to sort; the nearest is “by month”"_s},
        {u"tag blu"_s, u"the nearest is “blue”"_s},
        {u"run script"_s, u"Something is missing"_s},
        {u"trash everything"_s, u"“everything” is too much"_s},
    };
    for (const auto& [words, said] : actions) {
        const auto read = actionFromWords(words, watched);
        ASSERT_FALSE(read) << words.toStdString();
        EXPECT_TRUE(read.error().message.contains(said)) << read.error().message.toStdString();
    }
}

/// Conditions of which the summary tells everything.
rc::Gen<Condition> toldCondition() {
    return rc::gen::exec([] {
        Condition condition{.attribute = *rc::gen::arbitrary<Attribute>()};
        condition.op = *rc::gen::elementOf(allowedOperators(condition.attribute));
        const auto number = rc::gen::map(rc::gen::inRange(0, 5000),
                                         [](int value) { return QString::number(value / 4.0); });
        switch (condition.attribute) {
        case Attribute::kind:
            condition.value = rawValue(*rc::gen::arbitrary<FileKind>());
            break;
        case Attribute::tag:
            condition.value = rawValue(*rc::gen::arbitrary<TagColor>());
            break;
        case Attribute::size:
            condition.value = *number;
            condition.unit = *rc::gen::arbitrary<SizeUnit>();
            break;
        case Attribute::dateModified:
        case Attribute::dateAdded:
        case Attribute::dateCreated:
        case Attribute::lastOpened:
            condition.value =
                condition.op == before || condition.op == after
                    ? QDate(1970, 1, 1).addDays(*rc::gen::inRange(0, 40000)).toString(Qt::ISODate)
                    : *number;
            break;
        case Attribute::dobbinSays:
            condition.value = u"a %1."_s.arg(*rc::gen::arbitrary<QString>());
            break;
        default:
            condition.value = *rc::gen::arbitrary<QString>();
        }
        return condition;
    });
}

RC_GTEST_PROP(PhrasesProperties, conditionsComeBackFromTheirSummary, ()) {
    const Condition condition = *toldCondition();
    auto read = conditionFromWords(summaryText(condition));
    if (!read)
        RC_FAIL(read.error().message.toStdString());
    read->id = condition.id;
    RC_ASSERT(*read == condition);
}

/// A summary shows the last part of a path and no script, so these are put in.
RC_GTEST_PROP(PhrasesProperties, actionsComeBackFromTheirSummary, ()) {
    RuleAction action{.type = *rc::gen::arbitrary<ActionType>()};
    const QString text = u"x%1"_s.arg(*rc::gen::arbitrary<QString>());
    QString words;
    switch (action.type) {
    case ActionType::move:
    case ActionType::copy:
        action.destination = u"/%1"_s.arg(text);
        words = summaryText(RuleAction{.type = action.type}).chopped(1) + u"“/%1”"_s.arg(text);
        break;
    case ActionType::rename:
        action.renamePattern = text;
        break;
    case ActionType::runShortcut:
        action.shortcutName = text;
        break;
    case ActionType::runScript:
        action.scriptCommand = text;
        words = summaryText(action) + u" “%1”"_s.arg(text);
        break;
    case ActionType::addTag:
    case ActionType::removeTag:
        action.tag = *rc::gen::arbitrary<TagColor>();
        break;
    case ActionType::sortIntoSubfolder:
        action.sortBy = *rc::gen::arbitrary<SortStrategy>();
        break;
    default:
        break;
    }
    auto read = actionFromWords(words.isEmpty() ? summaryText(action) : words, watched);
    if (!read)
        RC_FAIL(read.error().message.toStdString());
    read->id = action.id;
    RC_ASSERT(*read == action);
}

} // namespace
} // namespace quillon::testing

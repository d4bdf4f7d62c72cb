#include "engine/ConditionValues.h"
#include "engine/PhraseReader.h"
#include "engine/PhraseValues.h"
#include "engine/RulePhrases.h"
#include "model/FileKind.h"

#include <QRegularExpression>

#include <span>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Attribute = ConditionAttribute;
using Operator = MatchOperator;

constexpr Phrase<Attribute> subjects[] = {
    {u"name", Attribute::name},
    {u"full name", Attribute::fullName},
    {u"extension", Attribute::extension},
    {u"source", Attribute::whereFrom},
    {u"where from", Attribute::whereFrom},
    {u"kind", Attribute::kind},
    {u"tagged", Attribute::tag},
    {u"tag", Attribute::tag},
    {u"size", Attribute::size},
    {u"modified", Attribute::dateModified},
    {u"date modified", Attribute::dateModified},
    {u"last modified", Attribute::dateModified},
    {u"added", Attribute::dateAdded},
    {u"date added", Attribute::dateAdded},
    {u"created", Attribute::dateCreated},
    {u"date created", Attribute::dateCreated},
    {u"opened", Attribute::lastOpened},
    {u"last opened", Attribute::lastOpened},
    {u"dobbin says", Attribute::dobbinSays},
};

constexpr Phrase<Operator> textTests[] = {
    {u"contains", Operator::contains},      {u"is", Operator::is},
    {u"is not", Operator::isNot},           {u"isn't", Operator::isNot},
    {u"begins with", Operator::beginsWith}, {u"starts with", Operator::beginsWith},
    {u"ends with", Operator::endsWith},     {u"matches regex", Operator::matchesRegex},
    {u"matches", Operator::matchesRegex},
};

constexpr Phrase<Operator> choiceTests[] = {
    {u"is", Operator::is},
    {u"is not", Operator::isNot},
    {u"isn't", Operator::isNot},
};

constexpr Phrase<Operator> sizeTests[] = {
    {u"larger than", Operator::greaterThan}, {u"greater than", Operator::greaterThan},
    {u"bigger than", Operator::greaterThan}, {u"more than", Operator::greaterThan},
    {u"over", Operator::greaterThan},        {u"smaller than", Operator::lessThan},
    {u"less than", Operator::lessThan},      {u"under", Operator::lessThan},
};

constexpr Phrase<Operator> dateTests[] = {
    {u"in the last", Operator::withinLastDays},
    {u"in last", Operator::withinLastDays},
    {u"within the last", Operator::withinLastDays},
    {u"within last", Operator::withinLastDays},
    {u"over", Operator::olderThanDays},
    {u"more than", Operator::olderThanDays},
    {u"older than", Operator::olderThanDays},
    {u"before", Operator::before},
    {u"after", Operator::after},
};

/// After "not opened": whatever did not happen lately was long ago.
constexpr Phrase<Operator> absenceTests[] = {
    {u"in over", Operator::olderThanDays},     {u"in more than", Operator::olderThanDays},
    {u"for over", Operator::olderThanDays},    {u"for more than", Operator::olderThanDays},
    {u"in the last", Operator::olderThanDays}, {u"within the last", Operator::olderThanDays},
    {u"in", Operator::olderThanDays},          {u"for", Operator::olderThanDays},
};

constexpr Phrase<Operator> verdicts[] = {
    {u"it's", Operator::is},         {u"it is", Operator::is},       {u"it's not", Operator::isNot},
    {u"it is not", Operator::isNot}, {u"it isn't", Operator::isNot},
};

std::unexpected<Error> wrong(const QString& sentence) {
    return failure(ErrorKind::invalid, sentence);
}

Expected<void> takeTest(PhraseReader& reader, std::span<const Phrase<Operator>> tests,
                        Condition& condition) {
    const QString subject = rawValue(condition.attribute).toLower();
    if (reader.rest().isEmpty())
        return wrong(u"“%1” needs a test after it, such as “%2”"_s.arg(
            subject, toQString(tests.front().words)));
    const auto op = reader.takeOne(tests);
    if (!op)
        return wrong(
            NearestPhrase(reader).offer(tests).sentence(u"a way to look at “%1”"_s.arg(subject)));
    condition.op = *op;
    if (reader.rest().isEmpty())
        return wrong(u"“%1 %2” needs a value after it"_s.arg(subject, rawValue(*op)));
    return {};
}

Expected<void> readText(PhraseReader& reader, Condition& condition) {
    if (const auto taken = takeTest(reader, textTests, condition); !taken)
        return taken;
    condition.value = reader.value();
    return {};
}

Expected<void> readKind(PhraseReader& reader, Condition& condition) {
    if (const auto taken = takeTest(reader, choiceTests, condition); !taken)
        return taken;
    reader.skip({u"a", u"an", u"the"});
    const auto kind = namedCase<FileKind>(reader.value());
    if (!kind)
        return std::unexpected(kind.error());
    condition.value = rawValue(*kind);
    return {};
}

Expected<void> readTag(PhraseReader& reader, bool isNegated, Condition& condition) {
    condition.op = reader.takeOne(choiceTests).value_or(Operator::is);
    if (isNegated)
        condition.op = condition.op == Operator::is ? Operator::isNot : Operator::is;
    const auto color = namedCase<TagColor>(reader.value());
    if (!color)
        return std::unexpected(color.error());
    condition.value = rawValue(*color);
    return {};
}

Expected<void> readSize(PhraseReader& reader, Condition& condition) {
    reader.skip({u"is"});
    if (const auto taken = takeTest(reader, sizeTests, condition); !taken)
        return taken;
    static const QRegularExpression amount(u"^(\\S+?)\\s*(\\pL*)$"_s);
    const QString text = reader.value();
    const auto match = amount.match(text);
    const QString unit = match.captured(2).toUpper();
    if (!parsedNumber(match.captured(1)))
        return wrong(u"“%1” is not a size such as “10 MB”"_s.arg(text));
    condition.unit = unit.isEmpty() ? SizeUnit::mb : fromRawValue<SizeUnit>(unit);
    if (!condition.unit)
        return wrong(
            u"“%1” is not a unit of sizes; there are KB, MB and GB"_s.arg(match.captured(2)));
    condition.value = match.captured(1);
    return {};
}

Expected<void> readDays(const PhraseReader& reader, Condition& condition) {
    static const QRegularExpression count(u"^(\\S+)(?:\\s+(days?))?(?:\\s+ago)?$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    const QString text = reader.value();
    condition.value = count.match(text).captured(1);
    if (!parsedNumber(condition.value))
        return wrong(u"“%1” is not a number of days, such as “30 days”"_s.arg(text));
    return {};
}

Expected<void> readDate(PhraseReader& reader, bool isNegated, Condition& condition) {
    reader.skip({u"is", u"was"});
    const auto tests = isNegated ? std::span<const Phrase<Operator>>(absenceTests)
                                 : std::span<const Phrase<Operator>>(dateTests);
    if (const auto taken = takeTest(reader, tests, condition); !taken)
        return taken;
    if (condition.op != Operator::before && condition.op != Operator::after)
        return readDays(reader, condition);
    condition.value = reader.value();
    if (!parsedDay(condition.value))
        return wrong(u"“%1” is not a day, such as “2026-01-31”"_s.arg(condition.value));
    return {};
}

Expected<void> readQuestion(PhraseReader& reader, Condition& condition) {
    condition.op = reader.takeOne(verdicts).value_or(Operator::is);
    condition.value = reader.value();
    if (condition.value.isEmpty())
        return wrong(u"“Dobbin says it's” needs something that a file can be after it"_s);
    return {};
}

Expected<void> readTest(PhraseReader& reader, bool isNegated, Condition& condition) {
    switch (condition.attribute) {
    case Attribute::kind:
        return readKind(reader, condition);
    case Attribute::tag:
        return readTag(reader, isNegated, condition);
    case Attribute::size:
        return readSize(reader, condition);
    case Attribute::dateModified:
    case Attribute::dateAdded:
    case Attribute::dateCreated:
    case Attribute::lastOpened:
        return readDate(reader, isNegated, condition);
    case Attribute::dobbinSays:
        return readQuestion(reader, condition);
    default:
        return readText(reader, condition);
    }
}

bool canBeNegated(Attribute attribute) {
    switch (attribute) {
    case Attribute::tag:
    case Attribute::dateModified:
    case Attribute::dateAdded:
    case Attribute::dateCreated:
    case Attribute::lastOpened:
        return true;
    default:
        return false;
    }
}

} // namespace

Expected<Condition> conditionFromWords(const QString& words) {
    PhraseReader reader(words);
    reader.skip({u"if", u"the", u"its", u"it", u"it's", u"file", u"is", u"was", u"has", u"been"});
    const bool isNegated = reader.take(u"not");
    if (reader.rest().isEmpty())
        return wrong(u"A condition is missing, such as “extension is pdf”"_s);

    Condition condition{.value = {}};
    const PhraseReader start = reader;
    const bool isBareSize = PhraseReader(reader).takeOne(sizeTests).has_value();
    const auto subject = isBareSize ? std::optional(Attribute::size) : reader.takeOne(subjects);
    if (!subject)
        return wrong(NearestPhrase(start).offer(subjects).offer(sizeTests).sentence(
            u"something that a rule can look at"_s));
    condition.attribute = *subject;
    if (isNegated && !canBeNegated(*subject))
        return wrong(u"“not” can't stand before “%1”"_s.arg(start.rest()));
    if (const auto read = readTest(reader, isNegated, condition); !read)
        return std::unexpected(read.error());
    return condition;
}

} // namespace quillon

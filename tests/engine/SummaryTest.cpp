#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using enum MatchOperator;

TEST(Summary, Conditions) {
    using Attribute = ConditionAttribute;
    const struct {
        Attribute attribute;
        MatchOperator op;
        QString value;
        QString phrase;
        std::optional<SizeUnit> unit = SizeUnit::mb;
    } cases[] = {
        {Attribute::name, contains, u"%1 “x”"_s, u"name contains “%1 “x””"_s},
        {Attribute::name, beginsWith, u"IMG_"_s, u"name begins with “IMG_”"_s},
        {Attribute::name, endsWith, u" "_s, u"name ends with “ ”"_s},
        {Attribute::name, matchesRegex, u"^a$"_s, u"name matches regex “^a$”"_s},
        {Attribute::fullName, isNot, u"a.txt"_s, u"full name is not “a.txt”"_s},
        {Attribute::extension, is, u"pdf"_s, u"extension is “pdf”"_s},
        {Attribute::whereFrom, contains, u"bank"_s, u"source contains “bank”"_s},
        {Attribute::kind, is, u"image"_s, u"kind is Images"_s},
        {Attribute::kind, isNot, u"video"_s, u"kind is not Videos"_s},
        {Attribute::kind, contains, u"audio"_s, u"kind is Audio"_s},
        {Attribute::kind, is, u"document"_s, u"kind is Documents"_s},
        {Attribute::kind, is, u"pdf"_s, u"kind is PDFs"_s},
        {Attribute::kind, is, u"archive"_s, u"kind is Archives"_s},
        {Attribute::kind, is, u"code"_s, u"kind is Code"_s},
        {Attribute::kind, is, u"folder"_s, u"kind is Folders"_s},
        {Attribute::kind, is, u"other"_s, u"kind is Other"_s},
        {Attribute::kind, is, u"Pdf"_s, u"kind is Pdf"_s},
        {Attribute::tag, is, u"gray"_s, u"tagged Gray"_s},
        {Attribute::tag, isNot, u"orange"_s, u"not tagged Orange"_s},
        {Attribute::tag, isNot, u"work"_s, u"not tagged work"_s},
        {Attribute::size, greaterThan, u"100"_s, u"larger than 100 KB"_s, SizeUnit::kb},
        {Attribute::size, lessThan, u"5"_s, u"smaller than 5 MB"_s},
        {Attribute::size, is, u"5"_s, u"smaller than 5 GB"_s, SizeUnit::gb},
        {Attribute::size, lessThan, u"5"_s, u"smaller than 5 MB"_s, std::nullopt},
        {Attribute::dobbinSays, is, u"a receipt"_s, u"Dobbin says it's a receipt"_s},
        {Attribute::dobbinSays, isNot, u"a bill"_s, u"Dobbin says it's not a bill"_s},
        {Attribute::dateModified, withinLastDays, u"7"_s, u"modified in the last 7 days"_s},
        {Attribute::dateModified, withinLastDays, u"1"_s, u"modified in the last 1 day"_s},
        {Attribute::dateModified, withinLastDays, u"1.0"_s, u"modified in the last 1.0 days"_s},
        {Attribute::dateAdded, olderThanDays, u"1"_s, u"added over 1 day ago"_s},
        {Attribute::dateAdded, olderThanDays, u"30"_s, u"added over 30 days ago"_s},
        {Attribute::dateAdded, olderThanDays, u" 1"_s, u"added over  1 days ago"_s},
        {Attribute::dateCreated, before, u"2026-01-01"_s, u"created before 2026-01-01"_s},
        {Attribute::dateCreated, after, u"2026-01-01"_s, u"created after 2026-01-01"_s},
        {Attribute::dateCreated, isNot, u"x"_s, u"created is not x"_s},
        {Attribute::lastOpened, withinLastDays, u"2"_s, u"opened in the last 2 days"_s},
        {Attribute::lastOpened, withinLastDays, u"1"_s, u"opened in the last 1 day"_s},
        {Attribute::lastOpened, olderThanDays, u"1"_s, u"not opened in over 1 day"_s},
        {Attribute::lastOpened, olderThanDays, u"30"_s, u"not opened in over 30 days"_s},
        {Attribute::lastOpened, before, u"2026-01-01"_s, u"last opened before 2026-01-01"_s},
        {Attribute::lastOpened, after, u"2026-01-01"_s, u"last opened after 2026-01-01"_s},
        {Attribute::lastOpened, contains, u"x"_s, u"last opened contains x"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(summaryText(Condition{
                      .attribute = c.attribute, .op = c.op, .value = c.value, .unit = c.unit}),
                  c.phrase);
}

TEST(Summary, Actions) {
    using Type = ActionType;
    const struct {
        RuleAction action;
        QString phrase;
    } cases[] = {
        {{.type = Type::move, .destination = u"/home/anna/Invoices/"_s}, u"Move to Invoices"_s},
        {{.type = Type::move, .destination = u"~"_s}, u"Move to ~"_s},
        {{.type = Type::move}, u"Move to …"_s},
        {{.type = Type::copy, .destination = u""_s}, u"Copy to …"_s},
        {{.type = Type::copy, .destination = u"/"_s}, u"Copy to /"_s},
        {{.type = Type::rename, .renamePattern = u"{date} %1"_s}, u"Rename to “{date} %1”"_s},
        {{.type = Type::rename, .renamePattern = u""_s}, u"Rename to “{name}”"_s},
        {{.type = Type::renameWithDobbin}, u"Rename with Dobbin"_s},
        {{.type = Type::addTag, .tag = TagColor::red}, u"Tag Red"_s},
        {{.type = Type::removeTag, .tag = TagColor::gray}, u"Remove Gray tag"_s},
        {{.type = Type::sortIntoSubfolder}, u"Sort into subfolders by kind"_s},
        {{.type = Type::sortIntoSubfolder, .sortBy = SortStrategy::byMonth},
         u"Sort into subfolders by month"_s},
        {{.type = Type::sortIntoSubfolder, .sortBy = SortStrategy::byExtension},
         u"Sort into subfolders by extension"_s},
        {{.type = Type::unpack, .keepOriginal = true}, u"Unpack archive"_s},
        {{.type = Type::runShortcut}, u"Run shortcut “…”"_s},
        {{.type = Type::runShortcut, .shortcutName = u"Shrink"_s}, u"Run shortcut “Shrink”"_s},
        {{.type = Type::runScript}, u"Run script"_s},
        {{.type = Type::trash}, u"Move to Trash"_s},
    };
    for (const auto& [action, phrase] : cases)
        EXPECT_EQ(summaryText(action), phrase);
}

TEST(Summary, Rules) {
    const std::vector<Condition> one{
        {.attribute = ConditionAttribute::extension, .op = is, .value = u"pdf"_s}};
    std::vector<Condition> two = one;
    two.push_back({.attribute = ConditionAttribute::tag, .op = is, .value = u"red"_s});
    const std::vector<RuleAction> actions{
        {.type = ActionType::move, .destination = u"/a/Invoices"_s},
        {.type = ActionType::addTag, .tag = TagColor::red}};
    const struct {
        Rule rule;
        QString line;
    } cases[] = {
        {{.conditions = one, .actions = actions},
         u"If extension is “pdf” → Move to Invoices, Tag Red"_s},
        {{.matchMode = MatchMode::all, .conditions = two, .actions = {}},
         u"If extension is “pdf” and tagged Red → do nothing"_s},
        {{.matchMode = MatchMode::any, .conditions = two, .actions = {}},
         u"If extension is “pdf” or tagged Red → do nothing"_s},
        {{.matchMode = MatchMode::none, .conditions = two, .actions = {}},
         u"Unless extension is “pdf” or tagged Red → do nothing"_s},
        {{.matchMode = MatchMode::none, .conditions = {}, .actions = actions},
         u"Never (no conditions) → Move to Invoices, Tag Red"_s},
        {{.conditions = {}, .actions = {}}, u"Never (no conditions) → do nothing"_s},
        {Rule{}, u"If name contains “” → Move to …"_s},
    };
    for (const auto& [rule, line] : cases)
        EXPECT_EQ(summary(rule), line);
}

TEST(Checks, Warnings) {
    const auto withAttributes = [](std::initializer_list<ConditionAttribute> attributes) {
        Rule rule{.conditions = {}, .actions = {{.type = ActionType::trash}}};
        for (const ConditionAttribute attribute : attributes)
            rule.conditions.push_back({.attribute = attribute});
        return rule;
    };
    const auto withActions = [](std::vector<RuleAction> actions) {
        return Rule{.conditions = {{.value = u" "_s}}, .actions = std::move(actions)};
    };
    using Attribute = ConditionAttribute;
    using Type = ActionType;
    const struct {
        Rule rule;
        QStringList warnings;
    } cases[] = {
        {{.conditions = {}, .actions = {}},
         {u"Add at least one condition — this rule never matches."_s,
          u"Add an action — this rule does nothing."_s}},
        {Rule{},
         {u"A “Name” condition has no value."_s,
          u"“Move to folder” needs a destination folder."_s}},
        {withAttributes({Attribute::whereFrom, Attribute::fullName, Attribute::dobbinSays,
                         Attribute::extension, Attribute::extension}),
         {u"A “Where from” condition has no value."_s, u"A “Full name” condition has no value."_s,
          u"A “Dobbin says it” condition has no value."_s,
          u"A “Extension” condition has no value."_s, u"A “Extension” condition has no value."_s}},
        {withAttributes({Attribute::kind, Attribute::tag, Attribute::size, Attribute::dateModified,
                         Attribute::dateAdded, Attribute::dateCreated, Attribute::lastOpened}),
         {}},
        {withActions({{.type = Type::runScript, .scriptCommand = u""_s},
                      {.type = Type::runShortcut},
                      {.type = Type::runShortcut, .shortcutName = u""_s},
                      {.type = Type::rename, .renamePattern = u""_s},
                      {.type = Type::copy, .destination = u""_s}}),
         {u"“Run shell script” has no script."_s, u"“Run Shortcut” needs a shortcut to run."_s,
          u"“Run Shortcut” needs a shortcut to run."_s, u"“Rename” needs a pattern."_s,
          u"“Copy to folder” needs a destination folder."_s}},
        {withActions({{.type = Type::move, .destination = u" "_s},
                      {.type = Type::rename},
                      {.type = Type::runScript},
                      {.type = Type::runShortcut, .shortcutName = u" "_s},
                      {.type = Type::renameWithDobbin},
                      {.type = Type::addTag},
                      {.type = Type::removeTag},
                      {.type = Type::sortIntoSubfolder},
                      {.type = Type::unpack},
                      {.type = Type::trash}}),
         {}},
    };
    for (const auto& [rule, warnings] : cases)
        EXPECT_EQ(validationWarnings(rule), warnings);
}

} // namespace quillon

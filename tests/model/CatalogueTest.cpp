#include "model/ActionType.h"
#include "model/CleanupRecipe.h"
#include "model/ConditionAttribute.h"
#include "model/LogEntry.h"
#include "model/RulePresets.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Everything about a rule but its ids, in one line.
QString line(const Rule& rule) {
    QString text = rule.name + (rule.isEnabled ? u""_s : u" (off)"_s) + u" ["_s +
                   rawValue(rule.matchMode) + u"]"_s;
    for (const Condition& condition : rule.conditions)
        text += u" | %1, %2, %3, %4"_s.arg(rawValue(condition.attribute), rawValue(condition.op),
                                           condition.value, rawValue(*condition.unit));
    for (const RuleAction& action : rule.actions) {
        text += u" > "_s + rawValue(action.type);
        if (action.destination)
            text += u", "_s + *action.destination;
        RuleAction rest{.id = action.id, .type = action.type, .destination = action.destination};
        if (action.type == ActionType::addTag) {
            text += u", "_s + rawValue(action.tag);
            rest.tag = action.tag;
        }
        if (action.type == ActionType::sortIntoSubfolder) {
            text += u", "_s + rawValue(action.sortBy);
            rest.sortBy = action.sortBy;
        }
        EXPECT_EQ(action, rest) << "fields that are not used keep their defaults";
    }
    return text;
}

WatchedFolder folderAt(const QString& path) {
    return {.path = path};
}

QStringList idsFor(const QString& path) {
    QStringList ids;
    for (const CleanupRecipe& recipe : recipesFor(folderAt(path)))
        ids.append(recipe.id);
    return ids;
}

} // namespace

TEST(RulePresets, AreExactlyThese) {
    const struct {
        QString description, symbolName, rule;
    } expected[] = {
        {u"File images, documents, audio… into matching subfolders"_s, u"square.grid.2x2"_s,
         u"Sort by kind [all] | Size, greater than, 0, KB > Sort into subfolder, By kind"_s},
        {u"Group files into YYYY-MM folders by date"_s, u"calendar"_s,
         u"Sort by month [all] | Size, greater than, 0, KB > Sort into subfolder, By month"_s},
        {u"Extract zip/tar/7z files, then trash the original"_s, u"archivebox"_s,
         u"Unpack archives [all] | Kind, is, archive, MB > Unpack archive"_s},
        {u"Give files named “Screenshot…” an orange tag"_s, u"camera.viewfinder"_s,
         u"Tag screenshots [all] | Name, begins with, Screenshot, MB > Add tag, orange"_s},
        {u"Tag anything over 100 MB red"_s, u"scalemass"_s,
         u"Flag large files [all] | Size, greater than, 100, MB > Add tag, red"_s},
        {u"Tag files added over 90 days ago grey"_s, u"clock.badge.exclamationmark"_s,
         u"Flag stale files [all] | Date added, older than (days), 90, MB > Add tag, gray"_s},
    };
    const auto presets = rulePresets();
    ASSERT_EQ(presets.size(), std::size(expected));
    for (std::size_t i = 0; i < presets.size(); ++i) {
        EXPECT_EQ(presets[i].title, presets[i].rule.name);
        EXPECT_EQ(presets[i].description, expected[i].description);
        EXPECT_EQ(presets[i].symbolName, expected[i].symbolName);
        EXPECT_EQ(line(presets[i].rule), expected[i].rule);
        EXPECT_NE(presets[i].rule.id, rulePresets()[i].rule.id);
    }
}

TEST(CleanupRecipes, AreExactlyThese) {
    const struct {
        QString id, title, symbolName;
        std::optional<int> days;
        bool isOn;
        QString warning, description, rule;
    } expected[] = {
        {u"old-installers"_s, u"Old installers"_s, u"shippingbox.fill"_s, 30, true, u""_s,
         u"Trash installers (.dmg, .pkg, .iso) not opened in 14 days."_s,
         u"Trash old installers [all] | Extension, matches regex, ^(dmg|pkg|iso)$, MB"
         " | Last opened, older than (days), 14, MB > Move to Trash"_s},
        {u"stale-files"_s, u"Stale files"_s, u"clock.arrow.circlepath"_s, 30, true, u""_s,
         u"Tuck files not opened in 14 days into an “Old Files” folder."_s,
         u"Set aside stale files [all] | Last opened, older than (days), 14, MB"
         " | Kind, is not, folder, MB > Move to folder, /home/anna/Downloads/Old Files"_s},
        {u"screenshots"_s, u"Screenshots"_s, u"camera.viewfinder"_s, std::nullopt, true, u""_s,
         u"File screenshots into a “Screenshots” folder."_s,
         u"File screenshots [all] | Name, matches regex,"
         " ^(Screenshot|Screen Shot|CleanShot|SCR-), MB"
         " > Move to folder, /home/anna/Downloads/Screenshots"_s},
        {u"loose-archives"_s, u"Loose archives"_s, u"archivebox.fill"_s, 7, false,
         u"Can’t be undone"_s,
         u"Unpack archives sitting untouched for 14 days, then trash the originals."_s,
         u"Unpack loose archives [all] | Kind, is, archive, MB"
         " | Last opened, older than (days), 14, MB > Unpack archive"_s},
        {u"sort-by-kind"_s, u"Sort the rest by kind"_s, u"square.grid.2x2.fill"_s, std::nullopt,
         false, u""_s, u"Sort remaining files into folders by kind (Images, PDFs, Documents…)."_s,
         u"Sort by kind [all] | Size, greater than, 0, KB > Sort into subfolder, By kind"_s},
    };
    const WatchedFolder folder = folderAt(u"/home/anna/Downloads/"_s);
    const auto recipes = recipesFor(folder);
    ASSERT_EQ(recipes.size(), std::size(expected));
    for (std::size_t i = 0; i < recipes.size(); ++i) {
        EXPECT_EQ(recipes[i].id, expected[i].id);
        EXPECT_EQ(recipes[i].title, expected[i].title);
        EXPECT_EQ(recipes[i].symbolName, expected[i].symbolName);
        EXPECT_EQ(recipes[i].days, expected[i].days);
        EXPECT_EQ(recipes[i].isOnByDefault, expected[i].isOn);
        EXPECT_EQ(recipes[i].warning, expected[i].warning);
        EXPECT_EQ(recipes[i].description(14), expected[i].description);
        EXPECT_EQ(line(recipes[i].makeRule(folder, 14)), expected[i].rule);
    }
}

TEST(CleanupRecipes, ADesktopGetsScreenshotsFirst) {
    const QStringList base{u"old-installers"_s, u"stale-files"_s, u"screenshots"_s,
                           u"loose-archives"_s, u"sort-by-kind"_s};
    const QStringList desktop{u"screenshots"_s, u"old-installers"_s, u"stale-files"_s,
                              u"loose-archives"_s, u"sort-by-kind"_s};
    EXPECT_EQ(idsFor(u"/home/anna/Downloads"_s), base);
    EXPECT_EQ(idsFor(u"/home/anna/Desktop/Inbox"_s), base);
    EXPECT_EQ(idsFor(u"/"_s), base);
    EXPECT_EQ(idsFor(u"/home/anna/Desktop"_s), desktop);
    EXPECT_EQ(idsFor(u"/home/anna/My DESKTOP files/"_s), desktop);
}

TEST(CleanupRecipes, BecomeRules) {
    const WatchedFolder folder = folderAt(u"/home/anna/Downloads"_s);
    const auto recipes = recipesFor(folder);
    const auto rules = conversionRules(recipes, {u"stale-files"_s}, {{u"stale-files"_s, 14}},
                                       folder, {u"File screenshots"_s, u"Unrelated"_s});
    ASSERT_EQ(rules.size(), 4U);
    EXPECT_EQ(rules[0].name, u"Trash old installers"_s);
    EXPECT_EQ(rules[0].conditions[1].value, u"30"_s);
    EXPECT_FALSE(rules[0].isEnabled);
    EXPECT_EQ(rules[1].name, u"Set aside stale files"_s);
    EXPECT_EQ(rules[1].conditions[0].value, u"14"_s);
    EXPECT_TRUE(rules[1].isEnabled);
    EXPECT_EQ(rules[2].conditions[1].value, u"7"_s);
    EXPECT_EQ(rules[3].name, u"Sort by kind"_s);
}

TEST(Model, TimingStandsForWatchingAndSchedule) {
    std::set<std::pair<bool, ScheduleInterval>> pairs;
    for (const TidyTiming timing : allCases<TidyTiming>()) {
        WatchedFolder folder;
        folder.setTiming(timing);
        EXPECT_EQ(folder.timing(), timing);
        EXPECT_EQ(folder.isWatching, timing == TidyTiming::live);
        pairs.insert({folder.isWatching, folder.schedule});
    }
    EXPECT_EQ(pairs.size(), 6U);
    EXPECT_EQ(timingOf(true, ScheduleInterval::daily), TidyTiming::live);
    EXPECT_EQ(label(TidyTiming::every6h), u"Every 6 hours"_s);
    EXPECT_EQ(scheduleOf(TidyTiming::every6h), ScheduleInterval::every6Hours);
}

TEST(Model, DerivedValues) {
    EXPECT_EQ(folderAt(u"/home/anna/Downloads//"_s).name(), u"Downloads"_s);
    EXPECT_EQ(folderAt(u"/"_s).name(), u"/"_s);
    EXPECT_EQ(folderAt(u""_s).name(), u""_s);
    EXPECT_EQ(symbol(ActionType::renameWithDobbin), symbol(ActionType::runShortcut));
    EXPECT_EQ(symbol(ActionType::trash), u"trash"_s);

    Rule rule;
    EXPECT_FALSE(rule.needsDobbin());
    rule.isEnabled = false;
    rule.conditions.push_back({.attribute = ConditionAttribute::dobbinSays});
    EXPECT_TRUE(rule.needsDobbin());
    rule.conditions.clear();
    rule.actions = {{.type = ActionType::trash}, {.type = ActionType::renameWithDobbin}};
    EXPECT_TRUE(rule.needsDobbin());

    EXPECT_TRUE((LogEntry{.undoable = true, .originalPath = u"/a"_s}).canUndo());
    EXPECT_FALSE((LogEntry{.undoable = true, .currentPath = u"/a"_s}).canUndo());
    EXPECT_FALSE((LogEntry{.originalPath = u"/a"_s, .currentPath = u"/b"_s}).canUndo());
}

TEST(Model, AttributesAllowTheirOperators) {
    const auto joined = [](ConditionAttribute attribute) {
        QStringList names;
        for (const MatchOperator op : allowedOperators(attribute))
            names.append(rawValue(op));
        return names.join(u", "_s);
    };
    const QString text = u"contains, is, is not, begins with, ends with, matches regex"_s;
    const QString date = u"within last (days), older than (days), before, after"_s;
    const QString choice = u"is, is not"_s;
    const QString expected[] = {text,
                                text,
                                text,
                                choice,
                                choice,
                                text,
                                date,
                                date,
                                date,
                                date,
                                u"greater than, less than"_s,
                                choice};
    for (const ConditionAttribute attribute : allCases<ConditionAttribute>())
        EXPECT_EQ(joined(attribute), expected[static_cast<std::size_t>(attribute)]);
}

} // namespace quillon

#include "model/CleanupRecipe.h"

#include "model/FileKind.h"
#include "model/PathText.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

Condition notOpenedFor(int days) {
    return {.attribute = ConditionAttribute::lastOpened,
            .op = MatchOperator::olderThanDays,
            .value = QString::number(days)};
}

RuleAction moveInto(const WatchedFolder& folder, const QString& subfolder) {
    return {.type = ActionType::move, .destination = appendedPath(folder.path, subfolder)};
}

CleanupRecipe oldInstallers() {
    return {
        .id = u"old-installers"_s,
        .title = u"Old installers"_s,
        .symbolName = u"shippingbox.fill"_s,
        .days = 30,
        .isOnByDefault = true,
        .description =
            [](int days) {
                return u"Trash installers (.dmg, .pkg, .iso) not opened in %1 days."_s.arg(days);
            },
        .makeRule =
            [](const WatchedFolder&, int days) {
                return Rule{.name = u"Trash old installers"_s,
                            .conditions = {{.attribute = ConditionAttribute::extension,
                                            .op = MatchOperator::matchesRegex,
                                            .value = u"^(dmg|pkg|iso)$"_s},
                                           notOpenedFor(days)},
                            .actions = {{.type = ActionType::trash}}};
            },
    };
}

CleanupRecipe staleFiles() {
    return {
        .id = u"stale-files"_s,
        .title = u"Stale files"_s,
        .symbolName = u"clock.arrow.circlepath"_s,
        .days = 30,
        .isOnByDefault = true,
        .description =
            [](int days) {
                return u"Tuck files not opened in %1 days into an “Old Files” folder."_s.arg(days);
            },
        .makeRule =
            [](const WatchedFolder& folder, int days) {
                return Rule{.name = u"Set aside stale files"_s,
                            .conditions = {notOpenedFor(days),
                                           {.attribute = ConditionAttribute::kind,
                                            .op = MatchOperator::isNot,
                                            .value = rawValue(FileKind::folder)}},
                            .actions = {moveInto(folder, u"Old Files"_s)}};
            },
    };
}

CleanupRecipe screenshots() {
    return {
        .id = u"screenshots"_s,
        .title = u"Screenshots"_s,
        .symbolName = u"camera.viewfinder"_s,
        .isOnByDefault = true,
        .description = [](int) { return u"File screenshots into a “Screenshots” folder."_s; },
        .makeRule =
            [](const WatchedFolder& folder, int) {
                return Rule{
                    .name = u"File screenshots"_s,
                    .conditions = {{.attribute = ConditionAttribute::name,
                                    .op = MatchOperator::matchesRegex,
                                    .value = u"^(Screenshot|Screen Shot|CleanShot|SCR-)"_s}},
                    .actions = {moveInto(folder, u"Screenshots"_s)}};
            },
    };
}

CleanupRecipe looseArchives() {
    return {
        .id = u"loose-archives"_s,
        .title = u"Loose archives"_s,
        .symbolName = u"archivebox.fill"_s,
        .days = 7,
        .warning = u"Can’t be undone"_s,
        .description =
            [](int days) {
                return u"Unpack archives sitting untouched for %1 days, then trash the originals."_s
                    .arg(days);
            },
        .makeRule =
            [](const WatchedFolder&, int days) {
                return Rule{.name = u"Unpack loose archives"_s,
                            .conditions = {{.attribute = ConditionAttribute::kind,
                                            .op = MatchOperator::is,
                                            .value = rawValue(FileKind::archive)},
                                           notOpenedFor(days)},
                            .actions = {{.type = ActionType::unpack, .keepOriginal = false}}};
            },
    };
}

CleanupRecipe sortByKind() {
    return {
        .id = u"sort-by-kind"_s,
        .title = u"Sort the rest by kind"_s,
        .symbolName = u"square.grid.2x2.fill"_s,
        .description =
            [](int) {
                return u"Sort remaining files into folders by kind (Images, PDFs, Documents…)."_s;
            },
        .makeRule =
            [](const WatchedFolder&, int) {
                return Rule{.name = u"Sort by kind"_s,
                            .conditions = {{.attribute = ConditionAttribute::size,
                                            .op = MatchOperator::greaterThan,
                                            .value = u"0"_s,
                                            .unit = SizeUnit::kb}},
                            .actions = {{.type = ActionType::sortIntoSubfolder,
                                         .sortBy = SortStrategy::byKind}}};
            },
    };
}

} // namespace

std::vector<CleanupRecipe> recipesFor(const WatchedFolder& folder) {
    std::vector<CleanupRecipe> recipes{oldInstallers(), staleFiles(), screenshots(),
                                       looseArchives(), sortByKind()};
    if (folder.name().contains("desktop"_L1, Qt::CaseInsensitive)) {
        const auto found = std::ranges::find(recipes, u"screenshots"_s, &CleanupRecipe::id);
        std::rotate(recipes.begin(), found, found + 1);
    }
    return recipes;
}

std::vector<Rule> conversionRules(const std::vector<CleanupRecipe>& recipes,
                                  const QSet<QString>& enabled, const QHash<QString, int>& days,
                                  const WatchedFolder& folder,
                                  const QSet<QString>& existingRuleNames) {
    std::vector<Rule> rules;
    for (const CleanupRecipe& recipe : recipes) {
        Rule rule = recipe.makeRule(folder, days.value(recipe.id, recipe.days.value_or(0)));
        if (existingRuleNames.contains(rule.name))
            continue;
        rule.isEnabled = enabled.contains(recipe.id);
        rules.push_back(std::move(rule));
    }
    return rules;
}

} // namespace quillon

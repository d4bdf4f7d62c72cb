#include "model/CleanupChoice.h"

namespace quillon {

void CleanupChoice::chooseDefaults() {
    chosen.clear();
    for (const CleanupRecipe& recipe : recipes)
        if (recipe.isOnByDefault)
            chosen.insert(recipe.id);
}

std::vector<Rule> CleanupChoice::rules(const WatchedFolder& folder) const {
    std::vector<Rule> rules;
    for (const CleanupRecipe& recipe : recipes)
        if (isChosen(recipe))
            rules.push_back(recipe.makeRule(folder, daysOf(recipe)));
    return rules;
}

std::vector<Rule> CleanupChoice::keptRules(const WatchedFolder& folder) const {
    QSet<QString> names;
    for (const Rule& rule : folder.rules)
        names.insert(rule.name);
    return conversionRules(recipes, chosen, days, folder, names);
}

} // namespace quillon

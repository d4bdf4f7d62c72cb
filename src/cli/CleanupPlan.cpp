#include "cli/CleanupPlan.h"

#include "cli/NamedFolder.h"
#include "cli/UnknownWord.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

Chosen<CleanupRecipe> recipeNamed(const std::string& id,
                                  const std::vector<CleanupRecipe>& recipes) {
    const QString text = QString::fromStdString(id);
    const auto found = std::ranges::find(recipes, text, &CleanupRecipe::id);
    if (found != recipes.end())
        return *found;
    std::vector<std::string> ids;
    for (const CleanupRecipe& recipe : recipes)
        ids.push_back(recipe.id.toStdString());
    return unknownWord(id, "a recipe", ids);
}

Chosen<void> chooseRecipes(const CleanupOptions& options, CleanupChoice& choice) {
    for (const std::string& id : options.recipes) {
        const auto recipe = recipeNamed(id, choice.recipes);
        if (!recipe)
            return std::unexpected(recipe.error());
        choice.chosen.insert(recipe->id);
    }
    if (options.recipes.empty())
        choice.chooseDefaults();

    for (const auto& [id, days] : options.days) {
        const auto recipe = recipeNamed(id, choice.recipes);
        if (!recipe)
            return std::unexpected(recipe.error());
        if (!recipe->days)
            return refusal(ExitCode::usage,
                           u"The recipe %1 does not ask how old a file is"_s.arg(recipe->id));
        if (!choice.isChosen(*recipe) && !options.keeps)
            return refusal(ExitCode::usage, u"The recipe %1 is not among those to be followed; add "
                                            "--recipe %1"_s.arg(recipe->id));
        choice.days.insert(recipe->id, days);
    }
    return {};
}

/// The folder as it is watched, or else as a folder without an identity.
Chosen<WatchedFolder> folderToClean(const CleanupOptions& options,
                                    const std::vector<WatchedFolder>& watched,
                                    const Console& console, Services& services) {
    if (const auto folder = watchedFolderAt(options.folder, watched, console, services))
        return *folder;
    else if (options.keeps)
        return std::unexpected(folder.error());
    return plainFolderAt(options.folder, console, services);
}

} // namespace

Chosen<CleanupPlan> planCleanup(const CleanupOptions& options,
                                const std::vector<WatchedFolder>& watched, const Console& console,
                                Services& services) {
    auto folder = folderToClean(options, watched, console, services);
    if (!folder)
        return std::unexpected(folder.error());
    CleanupPlan plan;
    plan.keeps = options.keeps;
    plan.choice.recipes = recipesFor(*folder);
    if (const auto chosen = chooseRecipes(options, plan.choice); !chosen)
        return std::unexpected(chosen.error());
    plan.input.rules = plan.choice.rules(*folder);
    plan.input.folder = std::move(*folder);
    plan.input.settings.mayContinue = console.mayContinue;
    auto ready = services.engine(plan.input.settings).readyFiles(plan.input.folder);
    if (!ready)
        return refusal(ExitCode::unreadable, u"The folder %1 can't be read: %2"_s.arg(
                                                 pathText(options.folder), ready.error().message));
    plan.input.ready = std::move(*ready);
    return plan;
}

} // namespace quillon

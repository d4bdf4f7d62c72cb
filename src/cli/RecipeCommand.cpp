#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/NamedFolder.h"
#include "cli/Verbs.h"
#include "model/CleanupRecipe.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

QString described(const CleanupRecipe& recipe) {
    return recipe.description(recipe.days.value_or(0));
}

void printJson(const std::vector<CleanupRecipe>& recipes, std::ostream& out) {
    JsonStream json;
    json.beginList();
    for (const CleanupRecipe& recipe : recipes) {
        json.beginObject().key("id").text(recipe.id).key("title").text(recipe.title);
        json.key("description").text(described(recipe));
        if (recipe.days)
            json.key("days").integer(*recipe.days);
        json.key("isOnByDefault").truth(recipe.isOnByDefault);
        if (!recipe.warning.isEmpty())
            json.key("warning").text(recipe.warning);
        json.endObject();
    }
    json.endList();
    finish(json, out);
}

void printText(const std::vector<CleanupRecipe>& recipes, const Console& console) {
    ColumnWidth ids;
    for (const CleanupRecipe& recipe : recipes)
        ids.fit(recipe.id);
    LineBuffer lines(console.out, console.colored);
    const QString margin(ids.columns() + 2, u' ');
    for (const CleanupRecipe& recipe : recipes) {
        lines.add(recipe.id, LineBuffer::Style::strong, ids.columns())
            .add(u"  "_s)
            .add(recipe.title);
        if (!recipe.isOnByDefault)
            lines.add(u" (only when asked for)"_s, LineBuffer::Style::faint);
        lines.endLine();
        lines.add(margin).add(described(recipe), LineBuffer::Style::faint).endLine();
        if (!recipe.warning.isEmpty())
            lines.add(margin).add(recipe.warning, LineBuffer::Style::bad).endLine();
    }
}

} // namespace

ExitCode recipeListCommand(const RecipeListOptions& options, const Console& console,
                           Services& services) {
    WatchedFolder folder;
    if (!options.folder.empty()) {
        const FileSystem& fileSystem = services.platform().fileSystem;
        const std::string path = fileSystem.resolved(absolutePath(options.folder, console));
        if (const auto listing = fileSystem.list(path, {}); !listing) {
            console.say(u"The folder %1 can't be read: %2"_s.arg(pathText(options.folder),
                                                                 listing.error().message));
            return ExitCode::unreadable;
        }
        folder.path = pathText(path);
    }
    const std::vector<CleanupRecipe> recipes = recipesFor(folder);
    if (options.json)
        printJson(recipes, console.out);
    else
        printText(recipes, console);
    return ExitCode::done;
}

} // namespace quillon

#include "cli/CleanupPlan.h"
#include "cli/JsonOutput.h"
#include "cli/OneShotRun.h"
#include "cli/OpenStore.h"
#include "cli/PreviewOutput.h"
#include "cli/ProgressBar.h"
#include "cli/RunOutput.h"
#include "cli/StoreFailure.h"
#include "cli/Verbs.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

void addRecipes(const CleanupPlan& plan, LineBuffer& lines) {
    for (const CleanupRecipe& recipe : plan.choice.recipes) {
        if (!plan.choice.isChosen(recipe))
            continue;
        lines.add(recipe.title, LineBuffer::Style::strong)
            .add(u"  "_s)
            .add(recipe.description(plan.choice.daysOf(recipe)));
        if (!recipe.warning.isEmpty())
            lines.add(u"  "_s).add(recipe.warning, LineBuffer::Style::bad);
        lines.endLine();
    }
    lines.endLine();
}

void addKeptRules(const std::vector<Rule>& rules, const QString& verb, LineBuffer& lines) {
    if (rules.empty())
        lines.add(u"The folder has a rule for each recipe already."_s).endLine();
    for (const Rule& rule : rules) {
        lines.add(u"%1 the rule %2"_s.arg(verb, rule.name));
        if (!rule.isEnabled)
            lines.add(u" (off)"_s, LineBuffer::Style::faint);
        lines.endLine();
    }
}

JsonStream begunJson(const CleanupPlan& plan) {
    JsonStream json;
    json.beginObject().key("folder").text(plan.input.folder.path);
    json.key("recipes").beginList();
    for (const CleanupRecipe& recipe : plan.choice.recipes)
        if (plan.choice.isChosen(recipe))
            json.text(recipe.id);
    json.endList();
    return json;
}

void endJson(JsonStream& json, const CleanupPlan& plan, const std::vector<Rule>& kept,
             std::ostream& out) {
    if (plan.keeps) {
        json.key("rules").beginList();
        for (const Rule& rule : kept) {
            json.beginObject().key("name").text(rule.name);
            json.key("isEnabled").truth(rule.isEnabled).endObject();
        }
        json.endList();
    }
    json.endObject();
    finish(json, out);
}

ExitCode showPlan(const CleanupPlan& plan, bool json, const Console& console, Services& services) {
    std::vector<PreviewItem> items;
    {
        ProgressBar bar(console.err, services.platform().clock, console.showsProgress);
        items = services.engine(plan.input.settings)
                    .preview(plan.input.rules, plan.input.ready,
                             [&](std::size_t done, std::size_t total) { bar.update(done, total); });
    }
    if (json) {
        JsonStream stream = begunJson(plan);
        writePreview(stream, plan.input.ready, items, console.out);
        endJson(stream, plan, plan.keptRules(), console.out);
        return ExitCode::done;
    }
    LineBuffer lines(console.out, console.colored);
    addRecipes(plan, lines);
    addPreview(plan.input.ready, items, lines);
    if (plan.keeps)
        addKeptRules(plan.keptRules(), u"Would add"_s, lines);
    return ExitCode::done;
}

/// Runs that have done something, or that went wrong.
std::vector<RunReport> notable(std::vector<RunReport> reports) {
    std::erase_if(reports, [](const RunReport& report) {
        return report.run.entries.empty() && !report.unlisted && !report.unsaved &&
               !report.run.stopped;
    });
    return reports;
}

ExitCode carryOutPlan(CleanupPlan plan, bool json, const StoreAccess& store, const Console& console,
                      Services& services) {
    OneShotRun run = plannedRun(plan.input);
    carryOut(run, plan.input, store, console, services);

    const bool keeps = plan.keeps && !run.run.interrupted;
    const std::vector<Rule> kept = keeps ? plan.keptRules() : std::vector<Rule>{};
    std::vector<RunReport> later;
    if (!kept.empty())
        later = notable(store.runsOf(
            [&](AppStore& appStore) {
                appStore.addRules(kept, plan.input.folder.id, RuleSource::keepItTidy);
            },
            console.mayContinue));

    if (json) {
        JsonStream stream = begunJson(plan);
        writeOneShotRun(stream, run, console.out);
        endJson(stream, plan, kept, console.out);
    } else {
        LineBuffer lines(console.out, console.colored);
        addRecipes(plan, lines);
        addOneShotRun(run, lines);
        if (keeps)
            addKeptRules(kept, u"Added"_s, lines);
        addRuns(later, lines);
        addUndoHint(run, lines);
    }
    ExitCode code = sayHowItEnded(run, console);
    code = std::max(code, sayHowRunsEnded(later, console));
    if (!kept.empty())
        code = std::max(code, sayWhetherSaved(store, console));
    return code;
}

} // namespace

ExitCode cleanupCommand(const CleanupOptions& options, const Console& console, Services& services) {
    if (options.isDryRun) {
        const auto view = services.viewStore();
        if (!view)
            return sayStoreFailure(view.error(), console);
        const auto plan = planCleanup(options, view->state.folders, console, services);
        return plan ? showPlan(*plan, options.json, console, services)
                    : sayRefusal(plan.error(), console);
    }
    const auto store = openStoreFor(console, services);
    if (!store)
        return store.error();
    const auto folders = store->call([](AppStore& appStore) { return appStore.folders(); });
    auto plan = planCleanup(options, folders, console, services);
    return plan ? carryOutPlan(std::move(*plan), options.json, *store, console, services)
                : sayRefusal(plan.error(), console);
}

} // namespace quillon

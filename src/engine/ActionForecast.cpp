#include "engine/ActionForecast.h"

#include "engine/Actions.h"
#include "engine/FileFacts.h"

namespace quillon {

QStringList ActionForecast::phrases(const ListedFile& file, const CompiledRule& rule) {
    FileFacts facts(platform_, kinds_, folder_, file);
    const ActionContext context{.platform = platform_,
                                .kinds = kinds_,
                                .dates = dates_,
                                .settings = settings_,
                                .path = facts.path(),
                                .status = file.status,
                                .counter = ++counters_[rule.rule().id],
                                .captures = rule.captures(facts),
                                .watchedFolder = folder_,
                                .smartName = rule.smartName(judge_, facts)};
    QStringList phrases;
    for (const RuleAction& action : rule.rule().actions)
        phrases.append(describeAction(action, context));
    return phrases;
}

} // namespace quillon

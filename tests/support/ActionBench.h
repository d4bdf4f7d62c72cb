#pragma once

#include "engine/Actions.h"
#include "engine/DateFormats.h"
#include "platform/FileSystem.h"
#include "support/LinuxMachine.h"

#include <functional>

namespace quillon::testing {

/// An action of a type with the fields that `set` fills in.
inline RuleAction makeAction(ActionType type, const std::function<void(RuleAction&)>& set = {}) {
    RuleAction action;
    action.type = type;
    if (set)
        set(action);
    return action;
}
inline RuleAction moveTo(const QString& folder, ActionType type = ActionType::move) {
    return makeAction(type, [&](RuleAction& action) { action.destination = folder; });
}
inline RuleAction renameBy(const QString& pattern) {
    return makeAction(ActionType::rename,
                      [&](RuleAction& action) { action.renamePattern = pattern; });
}
inline RuleAction sortBy(SortStrategy strategy) {
    return makeAction(ActionType::sortIntoSubfolder,
                      [&](RuleAction& action) { action.sortBy = strategy; });
}
inline RuleAction runScript(const QString& script) {
    return makeAction(ActionType::runScript,
                      [&](RuleAction& action) { action.scriptCommand = script; });
}
inline RuleAction runShortcut(const QString& name) {
    return makeAction(ActionType::runShortcut,
                      [&](RuleAction& action) { action.shortcutName = name; });
}
inline RuleAction unpackArchive(bool keepOriginal) {
    return makeAction(ActionType::unpack,
                      [&](RuleAction& action) { action.keepOriginal = keepOriginal; });
}

/// Carries actions out on real files of a LinuxMachine.
class ActionBench {
public:
    LinuxMachine machine;
    EngineSettings settings;

    [[nodiscard]] ActionContext contextOf(const std::string& name) {
        return contextOf(name, machine.platform);
    }
    /// With some service in place of the machine's own.
    [[nodiscard]] ActionContext contextOf(const std::string& name, const Platform& platform) {
        const std::string path = machine.at(name);
        return {.platform = platform,
                .kinds = kinds_,
                .dates = dates_,
                .settings = settings,
                .path = path,
                .status = machine.platform.fileSystem.status(path).value_or(FileStatus{}),
                .captures = {},
                .watchedFolder = machine.work()};
    }
    ActionResult perform(const RuleAction& action, const std::string& name) {
        return performAction(action, contextOf(name));
    }
    /// The log text; "FAILED: " before it when the action failed.
    QString logText(const RuleAction& action, const std::string& name) {
        const ActionResult result = perform(action, name);
        return (result.succeeded ? QString() : QStringLiteral("FAILED: ")) +
               result.phrases.join(QStringLiteral(", "));
    }

private:
    KindClassifier kinds_{machine.platform.contentTypes};
    DateFormats dates_;
};

} // namespace quillon::testing

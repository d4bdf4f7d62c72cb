#pragma once

#include "cli/Options.h"
#include "service/Console.h"
#include "service/ExitCode.h"
#include "service/Services.h"

namespace quillon {

// What each verb does, one file each. Results go to the console's `out`, one sentence about
// whatever went wrong to its `err`.

[[nodiscard]] ExitCode tidyCommand(const FolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode previewCommand(const FolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode probeCommand(const FolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode checkCommand(const CheckOptions&, const Console&, Services&);
[[nodiscard]] ExitCode runCommand(const RunOptions&, const Console&, Services&);
[[nodiscard]] ExitCode cleanupCommand(const CleanupOptions&, const Console&, Services&);
[[nodiscard]] ExitCode logCommand(const LogOptions&, const Console&, Services&);
[[nodiscard]] ExitCode undoCommand(const UndoOptions&, const Console&, Services&);
[[nodiscard]] ExitCode agentCommand(const AgentOptions&, const Console&, Services&);
[[nodiscard]] ExitCode pauseCommand(const Console&, Services&);
[[nodiscard]] ExitCode resumeCommand(const Console&, Services&);
[[nodiscard]] ExitCode statusCommand(const StatusOptions&, const Console&, Services&);
[[nodiscard]] ExitCode diagnosticsCommand(const DiagnosticsOptions&, const Console&, Services&);
[[nodiscard]] ExitCode settingsListCommand(const SettingsOptions&, const Console&, Services&);
[[nodiscard]] ExitCode settingsGetCommand(const SettingsOptions&, const Console&, Services&);
[[nodiscard]] ExitCode settingsSetCommand(const SettingsOptions&, const Console&, Services&);

[[nodiscard]] ExitCode folderAddCommand(const WatchedFolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode folderRemoveCommand(const WatchedFolderOptions&, const Console&, Services&);
[[nodiscard]] ExitCode folderListCommand(const PlainOptions&, const Console&, Services&);
[[nodiscard]] ExitCode folderSetCommand(const WatchedFolderOptions&, const Console&, Services&);

[[nodiscard]] ExitCode ruleListCommand(const RuleOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleAddCommand(const RuleAddOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleRemoveCommand(const RuleOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleEnableCommand(const RuleOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleDisableCommand(const RuleOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleDuplicateCommand(const RuleOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleCopyCommand(const RuleCopyOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleMoveCommand(const RuleMoveOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleImportCommand(const RuleFileOptions&, const Console&, Services&);
[[nodiscard]] ExitCode ruleExportCommand(const RuleFileOptions&, const Console&, Services&);
[[nodiscard]] ExitCode presetListCommand(const PlainOptions&, const Console&, Services&);
[[nodiscard]] ExitCode presetAddCommand(const PresetAddOptions&, const Console&, Services&);
[[nodiscard]] ExitCode recipeListCommand(const RecipeListOptions&, const Console&, Services&);

[[nodiscard]] ExitCode keySetCommand(const Console&, Services&);
[[nodiscard]] ExitCode keyRemoveCommand(const Console&, Services&);
[[nodiscard]] ExitCode keyStatusCommand(const PlainOptions&, const Console&, Services&);
[[nodiscard]] ExitCode modelStatusCommand(const PlainOptions&, const Console&, Services&);
[[nodiscard]] ExitCode modelPullCommand(const ModelOptions&, const Console&, Services&);
[[nodiscard]] ExitCode modelUseCommand(const ModelOptions&, const Console&, Services&);

[[nodiscard]] ExitCode askCommand(const AskOptions&, const Console&, Services&);

[[nodiscard]] ExitCode suggestCommand(const SuggestOptions&, const Console&, Services&);

[[nodiscard]] ExitCode writeRuleCommand(const WriteRuleOptions&, const Console&, Services&);

[[nodiscard]] ExitCode completionsCommand(const CompletionsOptions&, const Console&, Services&);
[[nodiscard]] ExitCode manualCommand(const ManualOptions&, const Console&, Services&);

} // namespace quillon

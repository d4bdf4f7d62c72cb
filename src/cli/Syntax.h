#pragma once

#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

namespace quillon {

// The options of each verb, for the verb table.

[[nodiscard]] Command defineTidy(CLI::App& parser);
[[nodiscard]] Command definePreview(CLI::App& parser);
[[nodiscard]] Command defineProbe(CLI::App& parser);
[[nodiscard]] Command defineCheck(CLI::App& parser);

[[nodiscard]] Command defineFolderAdd(CLI::App& parser);
[[nodiscard]] Command defineFolderRemove(CLI::App& parser);
[[nodiscard]] Command defineFolderList(CLI::App& parser);
[[nodiscard]] Command defineFolderSet(CLI::App& parser);

[[nodiscard]] Command defineRuleList(CLI::App& parser);
[[nodiscard]] Command defineRuleAdd(CLI::App& parser);
[[nodiscard]] Command defineRuleRemove(CLI::App& parser);
[[nodiscard]] Command defineRuleEnable(CLI::App& parser);
[[nodiscard]] Command defineRuleDisable(CLI::App& parser);
[[nodiscard]] Command defineRuleDuplicate(CLI::App& parser);
[[nodiscard]] Command defineRuleCopy(CLI::App& parser);
[[nodiscard]] Command defineRuleMove(CLI::App& parser);
[[nodiscard]] Command defineRuleImport(CLI::App& parser);
[[nodiscard]] Command defineRuleExport(CLI::App& parser);
[[nodiscard]] Command definePresetList(CLI::App& parser);
[[nodiscard]] Command definePresetAdd(CLI::App& parser);
[[nodiscard]] Command defineRecipeList(CLI::App& parser);

[[nodiscard]] Command defineRun(CLI::App& parser);
[[nodiscard]] Command defineCleanup(CLI::App& parser);
[[nodiscard]] Command defineLog(CLI::App& parser);
[[nodiscard]] Command defineUndo(CLI::App& parser);

[[nodiscard]] Command defineAgent(CLI::App& parser);
[[nodiscard]] Command definePause(CLI::App& parser);
[[nodiscard]] Command defineResume(CLI::App& parser);
[[nodiscard]] Command defineStatus(CLI::App& parser);
[[nodiscard]] Command defineDiagnostics(CLI::App& parser);
[[nodiscard]] Command defineSettingsList(CLI::App& parser);
[[nodiscard]] Command defineSettingsGet(CLI::App& parser);
[[nodiscard]] Command defineSettingsSet(CLI::App& parser);

[[nodiscard]] Command defineKeySet(CLI::App& parser);
[[nodiscard]] Command defineKeyRemove(CLI::App& parser);
[[nodiscard]] Command defineKeyStatus(CLI::App& parser);
[[nodiscard]] Command defineModelStatus(CLI::App& parser);
[[nodiscard]] Command defineModelPull(CLI::App& parser);
[[nodiscard]] Command defineModelUse(CLI::App& parser);

[[nodiscard]] Command defineAsk(CLI::App& parser);

[[nodiscard]] Command defineSuggest(CLI::App& parser);

[[nodiscard]] Command defineWriteRule(CLI::App& parser);

[[nodiscard]] Command defineCompletions(CLI::App& parser);
[[nodiscard]] Command defineManual(CLI::App& parser);

} // namespace quillon

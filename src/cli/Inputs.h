#pragma once

#include "cli/Options.h"
#include "engine/EngineSettings.h"
#include "engine/RuleEngine.h"
#include "model/Rule.h"
#include "model/WatchedFolder.h"
#include "service/Console.h"
#include "service/Services.h"

#include <vector>

namespace quillon {

/// The rules of a file, or of standard input for "-". Every error is a whole sentence.
[[nodiscard]] Expected<std::vector<Rule>> readRules(const std::string& source,
                                                    const Console& console, Services& services);

/// The folder and the rules that a command works on.
struct FolderInput {
    WatchedFolder folder; ///< without an identity when it is not watched
    EngineSettings settings;
    ReadyFiles ready;
    std::vector<Rule> rules;
};

/// Reads the rules, then lists the folder. Every error is a whole sentence. Says on the console
/// when there are no rules.
[[nodiscard]] Expected<FolderInput> readInput(const FolderOptions& options, const Console& console,
                                              Services& services);

} // namespace quillon

#pragma once

#include "model/MatchMode.h"
#include "model/TidyTiming.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// Of `tidy`, `preview` and `probe`.
struct FolderOptions {
    std::string folder;
    std::string rules; ///< a file, or "-" for standard input
    bool isRecursive = false;
    bool skipOnlineOnly = false;
    double settleSeconds = 3;
    bool json = false;
};

struct CheckOptions {
    std::string rules; ///< as above
    bool json = false;
};

struct LogOptions {
    std::string folder; ///< empty: every folder
    bool errorsOnly = false;
    std::string since;  ///< see timeSpan
    std::string before; ///< likewise
    std::optional<std::size_t> limit;
    bool json = false;
};

/// One of the first three, or of the two others at least one, is given.
struct UndoOptions {
    std::string entry; ///< a UUID or the beginning of one
    std::string batch; ///< likewise
    bool last = false;
    std::string since;  ///< see timeSpan
    std::string before; ///< likewise
    bool json = false;
};

/// Of verbs that take nothing else.
struct PlainOptions {
    bool json = false;
};

/// What a folder's flags ask for; nothing where none is given.
struct FolderSettings {
    std::optional<TidyTiming> timing = {};
    std::optional<bool> isRecursive = {};
    std::optional<bool> onlyNewFiles = {};
    std::optional<bool> skipOnlineOnly = {};
    std::optional<std::optional<int>> color = {}; ///< of the palette; nothing inside: none
    std::optional<std::string> symbol = {};

    bool operator==(const FolderSettings&) const = default;
};

/// Of `folder add` and `folder set`, and without the settings of `folder remove`.
struct WatchedFolderOptions {
    std::vector<std::string> folders; ///< one or more
    FolderSettings settings;
    bool json = false;
};

/// Of the verbs of `rule` that take a folder and rules of it.
struct RuleOptions {
    std::string folder;
    std::vector<std::string> rules; ///< names, positions from 1, or beginnings of ids
    bool json = false;
};

/// Either `file`, or `preset`, or a rule in words.
struct RuleAddOptions {
    std::string folder;
    std::string file;   ///< a rule file, or "-" for standard input
    std::string preset; ///< a title
    std::string name;
    std::vector<std::string> conditions;
    std::vector<std::string> actions;
    MatchMode matchMode = MatchMode::all;
    bool isOff = false;
    bool json = false;
};

struct RuleCopyOptions {
    std::string folder;
    std::string rule;
    std::string target; ///< the other folder
    bool json = false;
};

/// Exactly one of the last three is given.
struct RuleMoveOptions {
    std::string folder;
    std::string rule;
    std::optional<int> position; ///< from 1
    std::string before;          ///< another rule
    std::optional<int> offset;   ///< downwards
};

/// Of `rule import` and `rule export`.
struct RuleFileOptions {
    std::string folder;
    std::string file; ///< "-" for a standard stream
    bool json = false;
};

struct PresetAddOptions {
    std::string folder;
    std::vector<std::string> presets; ///< titles
    bool json = false;
};

struct RecipeListOptions {
    std::string folder; ///< empty: no folder in particular
    bool json = false;
};

struct RunOptions {
    std::vector<std::string> folders; ///< none: every watched folder
    bool waits = false;               ///< until nothing is settling or asked any more
    bool json = false;
};

struct CleanupOptions {
    std::string folder;
    std::vector<std::string> recipes;              ///< ids; none: those on by default
    std::vector<std::pair<std::string, int>> days; ///< by recipe id
    bool isDryRun = false;
    bool keeps = false; ///< the recipes also become rules of the folder
    bool json = false;
};

struct AgentOptions {
    bool wait = false;
};

struct StatusOptions {
    bool json = false;
};

struct DiagnosticsOptions {
    std::string output; ///< a file that is not there yet, or a folder; empty: standard output
};

/// Of `settings list`, `settings get` and `settings set`.
struct SettingsOptions {
    std::string key;
    std::string value;
    bool json = false;
};

/// Of `model pull` and `model use`.
struct ModelOptions {
    std::string name; ///< empty: the recommended one
};

/// Either the question or the number is given.
struct AskOptions {
    std::string question;
    std::optional<std::size_t> number; ///< of an offered change, from 1
    std::optional<std::string> answer; ///< that offers it, by the beginning of its id
    bool json = false;
};

/// Of the last two, one at most is given.
struct SuggestOptions {
    std::string folder;
    bool json = false;
    std::optional<std::string> add;     ///< an id, or a number of the list that was shown, from 1
    std::optional<std::string> dismiss; ///< likewise
    bool isAgreed = false;              ///< to add it though undo won't reach all that it takes
};

struct WriteRuleOptions {
    std::string folder;
    std::string sentence;
    bool saves = false;
    bool isAgreed = false; ///< to save it whatever its warnings
    bool json = false;
};

struct CompletionsOptions {
    std::string (*script)() = nullptr; ///< makes the shell's script
};

struct ManualOptions {
    std::string verb; ///< or a noun; empty: the whole command
    bool listsPages = false;
};

} // namespace quillon

#pragma once

#include "engine/RuleEngine.h"
#include "service/Services.h"

namespace quillon {

/// A folder to be looked at once, watched or not.
struct FolderRequest {
    std::string path; ///< absolute, valid UTF-8
    bool isRecursive = false;
    bool skipOnlineOnly = false;
    EngineSettings settings;
};

/// The folder as the engine wants it; it has no identity, so nothing is logged under one.
[[nodiscard]] WatchedFolder folderFor(const FolderRequest& request);

struct TidyReport {
    RunResult run;
    QUuid batchID = {};        ///< on every entry of the run
    std::size_t forgotten = 0; ///< entries past the log's cap, which can't be undone
    QStringList warnings = {}; ///< sentences about the store
    std::optional<Error> unsaved =
        {}; ///< the log could not be saved; the journal still holds the run
};

/// Tidies the ready files once and puts what happened into the activity log. Fails, before anything
/// is touched, when the store can't be opened for writing.
[[nodiscard]] Expected<TidyReport> tidyOnce(Services& services, const FolderRequest& request,
                                            const ReadyFiles& ready, const std::vector<Rule>& rules,
                                            const Progress& progress);

} // namespace quillon

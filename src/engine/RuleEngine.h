#pragma once

#include "engine/ActionResult.h"
#include "engine/CompiledRule.h"
#include "engine/EngineSettings.h"
#include "engine/FileJudge.h"
#include "engine/KindClassifier.h"
#include "engine/RunJournal.h"
#include "engine/RunResult.h"
#include "model/WatchedFolder.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// The files of a folder, split by whether they may be tidied now.
struct ReadyFiles {
    std::string folder;            ///< the listed folder, absolute
    std::vector<ListedFile> files; ///< ready, in listing order
    std::size_t deferred = 0;      ///< still being written
    std::size_t stalled = 0; ///< of these, unfinished downloads that nobody has touched for an hour
    std::size_t skippedNames = 0; ///< names that are not valid UTF-8
};

/// Called now and then with the number of files handled and the number in all.
using Progress = std::function<void(std::size_t done, std::size_t total)>;

/// Decides which rule applies to a file and carries it out. Never fails: a condition that can't be
/// evaluated is false, a failed action becomes a phrase of the log. Runs on its caller's thread and
/// blocks while a child process runs; one call at a time.
class RuleEngine {
public:
    /// Borrows everything but the settings.
    RuleEngine(const Platform& platform, FileJudge& judge, EngineSettings settings = {});

    /// Candidates of the folder; fails as FileSystem::list does.
    [[nodiscard]] Expected<Listing> files(const WatchedFolder& folder) const;
    [[nodiscard]] Expected<ReadyFiles> readyFiles(const WatchedFolder& folder) const;
    /// Listed files that are only placeholders of a cloud provider.
    [[nodiscard]] std::size_t onlineOnlyCount(const WatchedFolder& folder) const;
    /// The keys of every file in the folder now; of those that were there at a moment, as far as
    /// their dates tell, when there is one. Fails as files() does.
    [[nodiscard]] Expected<QSet<QString>> currentKeys(const WatchedFolder& folder,
                                                      std::optional<Timestamp> thereAt = {}) const;

    [[nodiscard]] MatchProbe probe(const Rule& rule, const ReadyFiles& ready) const;
    [[nodiscard]] std::vector<PreviewItem> preview(const std::vector<Rule>& rules,
                                                   const ReadyFiles& ready,
                                                   const Progress& progress = {}) const;

    /// Applies to each file the first enabled rule that matches. Files whose key is in `skip` are
    /// passed over; `batchID` is stamped on the entries.
    [[nodiscard]] RunResult execute(const ReadyFiles& items, const std::vector<Rule>& rules,
                                    const WatchedFolder& folder, const QSet<QString>& skip,
                                    std::optional<QUuid> batchID, RunJournal& journal,
                                    const Progress& progress = {}) const;

private:
    const Platform& platform_;
    FileJudge& judge_;
    EngineSettings settings_;
};

/// Path, size and modification date of a file: the same file, unchanged, has the same key.
[[nodiscard]] QString fileKey(const std::string& path, const FileStatus& status);

/// The path in a file's key.
[[nodiscard]] QString keyPath(const QString& key);

} // namespace quillon

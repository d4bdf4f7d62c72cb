#pragma once

#include "assistant/QuietJudge.h"
#include "engine/EngineSettings.h"
#include "engine/RuleEngine.h"
#include "model/WatchedFolder.h"
#include "platform/Platform.h"

#include <QSet>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace quillon {

/// A folder to make suggestions for.
struct SuggestionRequest {
    WatchedFolder folder; ///< with its rules; need not be watched
    /// The keys of the files that a folder for new files only leaves alone.
    QSet<QString> handled = {};
    QSet<std::uint64_t> dismissed = {}; ///< by suggestionKey()
};

/// What lies in a folder and would be left there by the rules that the folder has. A look at the
/// disk, which asks no model anything and is not repeated. One thread at a time.
class FolderView {
public:
    /// Borrows the platform and the judge. Fails as FileSystem::list does.
    [[nodiscard]] static Expected<FolderView> read(const Platform& platform,
                                                   const DobbinJudge& judge,
                                                   const EngineSettings& settings,
                                                   const SuggestionRequest& request);

    [[nodiscard]] const WatchedFolder& folder() const { return folder_; }
    [[nodiscard]] const Platform& platform() const { return platform_; }
    [[nodiscard]] Timestamp now() const { return now_; }
    /// Those that a run now would leave where they are.
    [[nodiscard]] const std::vector<const ListedFile*>& files() const { return files_; }

    /// How many may be tidied now, whatever the rules do with them.
    [[nodiscard]] std::size_t tested() const { return ready_->files.size(); }

    /// For each of files() one bit a rule; see everyMatch(). 64 rules at most.
    [[nodiscard]] std::vector<std::uint64_t> matches(const std::vector<Rule>& rules) const;

    /// Whether one of the rules that were matched would ask Dobbin about this one of files() first.
    [[nodiscard]] bool isWaiting(const ListedFile& file) const;

    /// Whether one rule of the folder that is switched off would do the same kind of thing with
    /// every one of these files.
    [[nodiscard]] bool isSwitchedOff(const Rule& rule,
                                     std::span<const ListedFile* const> caught) const;

private:
    FolderView(const Platform& platform, const DobbinJudge& judge, const WatchedFolder& folder,
               ReadyFiles ready);

    const Platform& platform_;
    std::unique_ptr<QuietJudge> judge_;
    WatchedFolder folder_;
    std::unique_ptr<const ReadyFiles> ready_; ///< what files_ points into
    std::vector<const ListedFile*> files_;
    Timestamp now_;
};

} // namespace quillon

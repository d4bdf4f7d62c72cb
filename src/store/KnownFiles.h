#pragma once

#include "store/StoreCore.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace quillon {

/// Finds out in the background which files are in folders that are to tidy only new ones. Such a
/// folder is not tidied before that is known. On the store's thread.
class KnownFiles {
public:
    /// Borrows the core.
    explicit KnownFiles(StoreCore& core) : core_(core) {}

    using Keys = std::optional<QSet<QString>>;

    /// Lists the folder as it is given; what comes into it from now on is not among the keys. There
    /// are none where it can't be listed. `found` comes before everything that waits for it, and
    /// not at all when this is given up; a later call takes the place of one that is under way.
    void find(const WatchedFolder& folder, std::function<void(Keys)> found);
    void giveUp(const QUuid& folderID);
    [[nodiscard]] bool isFinding(const QUuid& folderID) const {
        return searches_.contains(folderID);
    }

    /// Makes the call as soon as nothing is being found out about the folder; maybe at once.
    void whenKnown(const QUuid& folderID, std::function<void()> call);

private:
    struct Search;

    void settle(const std::shared_ptr<Search>& search);

    StoreCore& core_;
    std::map<QUuid, std::shared_ptr<Search>> searches_;
};

} // namespace quillon

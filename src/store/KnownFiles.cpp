#include "store/KnownFiles.h"

#include "model/Uuid.h"

#include <utility>
#include <vector>

namespace quillon {

struct KnownFiles::Search {
    WatchedFolder folder;
    Timestamp asked;
    std::function<void(Keys)> found;
    RuleEngine engine;
    Keys keys = {};
    std::vector<std::function<void()>> waiting = {};

    /// In the background.
    void perform() {
        if (auto listed = engine.currentKeys(folder, asked))
            keys = *std::move(listed);
    }
};

void KnownFiles::find(const WatchedFolder& folder, std::function<void(Keys)> found) {
    const auto search = std::make_shared<Search>(Search{.folder = folder,
                                                        .asked = core_.now(),
                                                        .found = std::move(found),
                                                        .engine = core_.around.makeEngine({})});
    if (const auto before = std::exchange(searches_[folder.id], search))
        search->waiting = std::move(before->waiting);
    // A lane of its own: a listing that doesn't end must not keep the next one waiting, but the
    // store's end waits for it.
    core_.addWork(uuidText(QUuid::createUuid()),
                  {.start =
                       [this, search](const std::function<void()>& ended) {
                           core_.inBackground([search] { search->perform(); },
                                              [this, search, ended] {
                                                  settle(search);
                                                  ended();
                                              });
                       },
                   .drop = [this, id = folder.id] { giveUp(id); }});
}

void KnownFiles::settle(const std::shared_ptr<Search>& search) {
    const auto current = searches_.find(search->folder.id);
    if (current == searches_.end() || current->second != search)
        return;
    searches_.erase(current);
    search->found(std::move(search->keys));
    for (const std::function<void()>& call : search->waiting)
        call();
}

void KnownFiles::giveUp(const QUuid& folderID) {
    const auto given = searches_.extract(folderID);
    if (given)
        for (const std::function<void()>& call : given.mapped()->waiting)
            call();
}

void KnownFiles::whenKnown(const QUuid& folderID, std::function<void()> call) {
    const auto search = searches_.find(folderID);
    if (search == searches_.end())
        call();
    else
        search->second->waiting.push_back(std::move(call));
}

} // namespace quillon

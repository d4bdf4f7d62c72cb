#pragma once

#include "store/AppStore.h"

#include <functional>
#include <type_traits>
#include <vector>

namespace quillon {

/// The AppStore for a thread other than its own, such as the one that a command runs on. Every call
/// blocks until the store's thread has answered; the store outlives it.
class StoreAccess {
public:
    explicit StoreAccess(AppStore& store) : store_(&store) {}

    /// Runs `work(store)` on the store's thread and returns what it returns. `work` must not keep
    /// the store waiting.
    template <typename Work>
    std::invoke_result_t<Work, AppStore&> call(Work&& work) const {
        using Result = std::invoke_result_t<Work, AppStore&>;
        if constexpr (std::is_void_v<Result>) {
            onStoreThread([&] { work(*store_); });
        } else {
            std::optional<Result> result;
            onStoreThread([&] { result.emplace(work(*store_)); });
            return std::move(*result);
        }
    }

    /// As call(), then waits for the runs that `change` has set off, and returns what came of each.
    /// When `mayContinue` turns false these runs end after the file that they are at; one that
    /// takes long over that is left out.
    [[nodiscard]] std::vector<RunReport> runsOf(const std::function<void(AppStore&)>& change,
                                                const std::function<bool()>& mayContinue) const;

    struct Settling {
        std::vector<RunReport> reports; ///< of the folder's runs in between
        QStringList problems;           ///< why the assistant could not answer
    };
    /// Has the assistant asked, and waits until nothing in the folder is settling and no answer is
    /// outstanding any more.
    [[nodiscard]] Settling untilSettled(const QUuid& folderID,
                                        const std::function<bool()>& mayContinue) const;

    /// As those of the store, but `progress` is called on the thread that waits here.
    [[nodiscard]] AppStore::CleanupReport runCleanup(AppStore::Cleanup cleanup) const;
    [[nodiscard]] AppStore::UndoReport undo(std::vector<QUuid> entryIDs, const Progress& progress,
                                            std::function<bool()> mayContinue) const;

private:
    void onStoreThread(const std::function<void()>& work) const;

    AppStore* store_;
};

} // namespace quillon

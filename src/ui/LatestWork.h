#pragma once

#include "platform/Background.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace quillon {

/// Work in the background of which only the newest counts: what comes of anything older, and of
/// what is under way when this goes, is dropped. The thread of an event loop.
class LatestWork {
public:
    using MayContinue = std::function<bool()>;

    /// Borrows the background.
    explicit LatestWork(Background& background) : background_(background) {}
    ~LatestWork() { drop(); }
    LatestWork(const LatestWork&) = delete;
    LatestWork& operator=(const LatestWork&) = delete;

    /// Runs `work(mayContinue)` on another thread and then `done(result)` here. The work is copied.
    template <typename Work, typename Done>
    void start(Work work, Done done) {
        using Result = std::invoke_result_t<Work&, const MayContinue&>;
        drop();
        const auto wanted = std::make_shared<std::atomic<bool>>(true);
        const auto result = std::make_shared<std::optional<Result>>();
        wanted_ = wanted;
        background_.start(
            [wanted, result, work = std::move(work)]() mutable {
                if (*wanted)
                    result->emplace(work(MayContinue([wanted] { return wanted->load(); })));
            },
            [wanted, result, done = std::move(done)]() mutable {
                if (*wanted && *result)
                    done(std::move(**result));
            });
    }

    void drop() {
        if (wanted_)
            *wanted_ = false;
        wanted_.reset();
    }

private:
    Background& background_;
    std::shared_ptr<std::atomic<bool>> wanted_;
};

} // namespace quillon

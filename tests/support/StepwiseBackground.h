#pragma once

#include "platform/Background.h"

#include <deque>

namespace quillon::testing {

/// Background work that is done on the test's thread when the test says so.
class StepwiseBackground final : public Background {
public:
    void start(std::function<void()> work, std::function<void()> done) override {
        started_.push_back({std::move(work), std::move(done)});
    }
    void post(std::function<void()> call) override { posted_.push_back(std::move(call)); }

    /// Work that has been started and not been done.
    [[nodiscard]] std::size_t waiting() const { return started_.size(); }

    /// Does the oldest piece of work.
    void step() {
        Piece piece = std::move(started_.front());
        started_.pop_front();
        piece.work();
        piece.done();
    }

    /// Does everything, what comes of it too.
    void finish() {
        while (!started_.empty() || !posted_.empty()) {
            while (!posted_.empty()) {
                const std::function<void()> call = std::move(posted_.front());
                posted_.pop_front();
                call();
            }
            if (!started_.empty())
                step();
        }
    }

private:
    struct Piece {
        std::function<void()> work;
        std::function<void()> done;
    };
    std::deque<Piece> started_;
    std::deque<std::function<void()>> posted_;
};

} // namespace quillon::testing

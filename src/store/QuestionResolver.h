#pragma once

#include <functional>

namespace quillon {

/// Whoever answers what the rules have asked the assistant. On the store's thread.
class QuestionResolver {
public:
    virtual ~QuestionResolver() = default;

    /// Whether a question or a name is waiting for an answer.
    [[nodiscard]] virtual bool hasPending() const = 0;

    /// Asks, and calls `done` on the store's thread with whether anything was settled. One call at
    /// a time.
    virtual void resolvePending(std::function<void(bool settled)> done) = 0;
};

} // namespace quillon

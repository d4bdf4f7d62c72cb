#pragma once

#include <QStringList>

#include <functional>

namespace quillon {

/// What came of asking the assistant.
struct QuestionsOutcome {
    bool settled = false;      ///< something was answered, so that a run may find more to do
    QStringList problems = {}; ///< sentences for people, none twice
};

/// Whoever answers what the rules have asked the assistant. On the store's thread.
class QuestionResolver {
public:
    virtual ~QuestionResolver() = default;

    /// Whether a question or a name is waiting for an answer.
    [[nodiscard]] virtual bool hasPending() const = 0;

    /// Asks, and calls `done` on the store's thread with what came of it. One call at a time;
    /// `done` is dropped when the resolver goes away before.
    virtual void resolvePending(std::function<void(QuestionsOutcome)> done) = 0;
};

} // namespace quillon

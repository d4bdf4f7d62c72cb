#pragma once

#include "store/QuestionResolver.h"

namespace quillon {

/// The resolver where there is no assistant: what rules ask stays unanswered.
class NoQuestions final : public QuestionResolver {
public:
    [[nodiscard]] bool hasPending() const override { return false; }
    void resolvePending(std::function<void(QuestionsOutcome)> done) override { done({}); }
};

} // namespace quillon

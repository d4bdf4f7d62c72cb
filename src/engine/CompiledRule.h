#pragma once

#include "engine/CompiledCondition.h"
#include "model/Rule.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

enum class MatchOutcome {
    matches,
    doesNotMatch,
    waiting, ///< did not match, needs the assistant, and the judge has yet to answer about the file
};

/// A rule compiled once a run. Threads may share one; with many files each does better with a copy.
class CompiledRule {
public:
    explicit CompiledRule(Rule rule);

    [[nodiscard]] const Rule& rule() const { return rule_; }

    /// Whether the rule applies to the file now. A rule that is switched off is tested all the
    /// same.
    [[nodiscard]] MatchOutcome match(MatchContext& context) const;

    /// The capture groups of the first condition that is a pattern, for the tokens {1} to {9};
    /// empty when there is none or it doesn't match.
    [[nodiscard]] QStringList captures(FileFacts& file) const;

    /// The judge's name for the file, when the rule has an action that gives it that name.
    [[nodiscard]] std::optional<QString> smartName(FileJudge& judge, const FileFacts& file) const;

private:
    [[nodiscard]] bool conditionsHold(MatchContext& context) const;
    [[nodiscard]] bool hasActed(const MatchContext& context) const;

    Rule rule_;
    std::vector<CompiledCondition> plain_;
    std::vector<CompiledCondition> asking_; ///< those that the assistant answers
    CompiledCaptures captures_;
    bool needsDobbin_ = false;
    bool renamesWithDobbin_ = false;
};

} // namespace quillon

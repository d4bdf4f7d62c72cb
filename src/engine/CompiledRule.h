#pragma once

#include "engine/FileFacts.h"
#include "engine/FileJudge.h"
#include "model/Rule.h"
#include "platform/Clock.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace quillon {

/// What a condition sees while it is tested.
struct MatchContext {
    FileFacts& file;
    FileJudge& judge;
    Timestamp now;
};

/// A condition ready to be tested many times: pattern compiled, numbers and days parsed, text
/// lower-cased. False whatever the operator when its value can't be understood. Safe to call from
/// several threads, each with its own context.
using CompiledCondition = std::function<bool(MatchContext&)>;

/// One entry of the table of attributes, defined in conditions/.
[[nodiscard]] CompiledCondition compileCondition(const Condition& condition);

enum class MatchOutcome {
    matches,
    doesNotMatch,
    waiting, ///< an answer of the assistant is outstanding
};

/// A rule compiled once a run.
class CompiledRule {
public:
    explicit CompiledRule(Rule rule);

    [[nodiscard]] const Rule& rule() const { return rule_; }

    /// Whether the rule applies to the file now. A rule that is switched off is tested all the same.
    [[nodiscard]] MatchOutcome match(MatchContext& context) const;

    /// The capture groups of the first condition that is a pattern, for the tokens {1} to {9}; empty
    /// when there is none or it doesn't match.
    [[nodiscard]] QStringList captures(FileFacts& file) const;

private:
    [[nodiscard]] bool combine(const std::vector<bool>& results) const;

    struct Test {
        CompiledCondition holds;
        bool asksDobbin = false;
        bool negated = false;
        QString question;
    };
    Rule rule_;
    std::vector<Test> tests_;
    bool needsDobbin_ = false;
    bool renamesWithDobbin_ = false;
    std::function<QStringList(FileFacts&)> captures_;
};

} // namespace quillon

#pragma once

#include "engine/CompiledRule.h"
#include "engine/KindClassifier.h"
#include "support/FakeJudge.h"
#include "support/FakePlatform.h"

namespace quillon::testing {

/// One file on a machine in memory, ready to be asked about.
struct MatchingFixture {
    FakePlatform machine;
    FakeJudge judge;
    std::string folder = "/home/user/Downloads";
    ListedFile file{"Report.pdf", {}};

    [[nodiscard]] std::string path() const { return joinPath(folder, file.path); }

    MatchOutcome outcome(const CompiledRule& rule) {
        KindClassifier kinds(machine.contentTypes);
        FileFacts facts(machine.platform, kinds, folder, file);
        MatchContext context{facts, judge, machine.clock.now()};
        return rule.match(context);
    }
    MatchOutcome outcome(const Rule& rule) { return outcome(CompiledRule(rule)); }

    bool holds(const Condition& condition) {
        Rule rule;
        rule.conditions = {condition};
        return outcome(rule) == MatchOutcome::matches;
    }

    QStringList captures(const std::vector<Condition>& conditions) {
        Rule rule;
        rule.conditions = conditions;
        KindClassifier kinds(machine.contentTypes);
        FileFacts facts(machine.platform, kinds, folder, file);
        return CompiledRule(rule).captures(facts);
    }
};

inline Condition condition(ConditionAttribute attribute, MatchOperator op, const QString& value,
                           std::optional<SizeUnit> unit = std::nullopt) {
    Condition made;
    made.attribute = attribute;
    made.op = op;
    made.value = value;
    made.unit = unit;
    return made;
}

} // namespace quillon::testing

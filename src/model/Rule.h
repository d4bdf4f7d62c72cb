#pragma once

#include "model/Condition.h"
#include "model/MatchMode.h"
#include "model/RuleAction.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <vector>

namespace quillon {

class JsonReader;

struct Rule {
    QUuid id = QUuid::createUuid();
    QString name = QStringLiteral("New Rule");
    bool isEnabled = true;
    MatchMode matchMode = MatchMode::all;
    std::vector<Condition> conditions{Condition{}};
    std::vector<RuleAction> actions{RuleAction{}};

    bool operator==(const Rule&) const = default;

    /// Whether running the rule needs the assistant, enabled or not.
    [[nodiscard]] bool needsDobbin() const;
};

[[nodiscard]] QJsonObject toJson(const Rule& rule);
[[nodiscard]] Expected<Rule> ruleFromJson(const JsonReader& json);

} // namespace quillon

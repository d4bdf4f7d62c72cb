#pragma once

#include "model/ActionType.h"
#include "model/SortStrategy.h"
#include "model/TagColor.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <optional>

namespace quillon {

class JsonReader;

/// One step of a rule. Every action carries every field and keeps them when its type changes; only
/// those that its type uses mean anything.
struct RuleAction {
    QUuid id = QUuid::createUuid();
    ActionType type = ActionType::move;
    std::optional<QString> destination = std::nullopt; ///< folder path; "~" is the home folder
    QString renamePattern = QStringLiteral("{name}");
    TagColor tag = TagColor::blue;
    SortStrategy sortBy = SortStrategy::byKind;
    bool keepOriginal = false; ///< leave an unpacked archive where it is
    QString scriptCommand = QStringLiteral("echo \"$1\"");
    std::optional<QString> shortcutName = std::nullopt;

    bool operator==(const RuleAction&) const = default;
};

[[nodiscard]] QJsonObject toJson(const RuleAction& action);
[[nodiscard]] Expected<RuleAction> actionFromJson(const JsonReader& json);

} // namespace quillon

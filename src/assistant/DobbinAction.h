#pragma once

#include "model/RawValue.h"
#include "model/WatchedFolder.h"
#include "platform/Error.h"

#include <QJsonObject>
#include <QString>
#include <QUuid>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

class AppStore;
class JsonReader;
struct RawAction;

/// A change that Dobbin suggests and Quillon can carry out. It is kept with the conversation, so
/// the folder and the rules that it names may have changed or gone since it was made.
struct DobbinAction {
    enum class Kind : std::uint8_t { reorderRules, turnOnRule, turnOffRule, runFolder, writeRule };

    Kind kind = Kind::runFolder;
    QUuid folderID = {};
    QString folderName = {};                                    ///< when it was made
    std::optional<QUuid> ruleID = std::nullopt;                 ///< of turning on or off
    std::optional<QString> ruleName = std::nullopt;             ///< when it was made
    std::optional<std::vector<QUuid>> ruleOrder = std::nullopt; ///< others stay behind these
    std::optional<QString> description = std::nullopt;          ///< of a rule to be written
    bool done = false;                                          ///< the user has had it carried out

    bool operator==(const DobbinAction&) const = default;

    /// What a button says: "Turn off “Old installers”".
    [[nodiscard]] QString label() const;
};

template <>
inline constexpr auto rawValues<DobbinAction::Kind> = std::to_array<std::u16string_view>(
    {u"reorderRules", u"turnOnRule", u"turnOffRule", u"runFolder", u"writeRule"});
template <>
inline constexpr std::u16string_view rawValueNoun<DobbinAction::Kind> = u"a kind of change";

[[nodiscard]] QJsonObject toJson(const DobbinAction& action);
[[nodiscard]] Expected<DobbinAction> dobbinActionFromJson(const JsonReader& json);

/// What the proposal means for these folders; nothing when it names a folder or a rule that isn't
/// there, or would change no order.
[[nodiscard]] std::optional<DobbinAction> resolve(const RawAction& raw,
                                                  const std::vector<WatchedFolder>& folders);

/// Carries the change out and says what has been done, in one sentence; the caller sets `done`.
/// Running a folder starts the run and doesn't wait for it. A rule to be written changes nothing
/// here. Fails, and changes nothing, when it was carried out before or its folder or one of its
/// rules has gone; fails with what the store says when the change, which is made, can't be saved.
/// The store's thread.
[[nodiscard]] Expected<QString> apply(const DobbinAction& action, AppStore& store);

} // namespace quillon

#pragma once

#include "engine/Actions.h"
#include "platform/FileSystem.h"

#include <QString>

#include <string>
#include <string_view>

namespace quillon {

[[nodiscard]] ActionResult nothingHappened(const ActionContext& context);

/// The file stays where it is; what was done to it is the phrase.
[[nodiscard]] ActionResult happened(const ActionContext& context, const QString& phrase);

/// The file stays where it is.
[[nodiscard]] ActionResult failed(const ActionContext& context, const QString& phrase);

/// The file was moved: the phrase with what was lost on the way. Nothing happened when the
/// placement says so.
[[nodiscard]] ActionResult moved(const ActionContext& context, const Placement& placement,
                                 const QString& phrase);

/// "" or " (without tags)".
[[nodiscard]] QString lossNote(const Placement& placement);

/// The last component of a path as text.
[[nodiscard]] QString nameOf(std::string_view path);

} // namespace quillon

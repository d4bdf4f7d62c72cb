#pragma once

#include "assistant/backends/ModelLibrary.h"
#include "service/Console.h"
#include "service/Services.h"

#include <optional>

namespace quillon {

/// How things are with the local models; nothing when the command is called off. `chosen` stands in
/// for the model of the settings.
[[nodiscard]] std::optional<ModelLibrary>
localModels(const Console& console, Services& services,
            const std::optional<QString>& chosen = std::nullopt);

/// The text of a setting that is in the table.
[[nodiscard]] QString assistantSetting(Services& services, QStringView key);

} // namespace quillon

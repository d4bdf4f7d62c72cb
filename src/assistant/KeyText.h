#pragma once

#include "platform/Error.h"

#include <QJsonArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace quillon {

class JsonReader;

// Suggestion keys as files hold them: 16 hexadecimal digits each.

[[nodiscard]] QString keyText(std::uint64_t key);
[[nodiscard]] QJsonArray keysToJson(const std::vector<std::uint64_t>& keys);
[[nodiscard]] Expected<std::uint64_t> keyFromJson(const JsonReader& json);

} // namespace quillon

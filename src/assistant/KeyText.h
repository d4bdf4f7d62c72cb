#pragma once

#include "platform/Error.h"

#include <QJsonArray>

#include <cstdint>
#include <vector>

namespace quillon {

class JsonReader;

// Suggestion keys as files hold them: 16 hexadecimal digits each.

[[nodiscard]] QJsonArray keysToJson(const std::vector<std::uint64_t>& keys);
[[nodiscard]] Expected<std::uint64_t> keyFromJson(const JsonReader& json);

} // namespace quillon

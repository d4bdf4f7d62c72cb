#pragma once

#include <QString>

#include <cstdint>

namespace quillon {

/// One turn of a conversation with a model.
struct AIMessage {
    enum class Role : std::uint8_t { user, assistant };

    Role role = Role::user;
    QString text;

    bool operator==(const AIMessage&) const = default;
};

} // namespace quillon

#pragma once

#include "platform/Error.h"

namespace quillon {

/// Whether the application starts with the user's login.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isOn() const = 0;
    [[nodiscard]] virtual Expected<void> setOn(bool on) = 0;
};

} // namespace quillon

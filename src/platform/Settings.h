#pragma once

#include "platform/Error.h"

#include <QString>

#include <optional>

namespace quillon {

/// The user's settings as texts under their keys; what they mean is up to the reader. Any thread.
class Settings {
public:
    virtual ~Settings() = default;

    /// Nothing when the key has never been set.
    [[nodiscard]] virtual std::optional<QString> value(const QString& key) const = 0;
    [[nodiscard]] virtual Expected<void> setValue(const QString& key, const QString& value) = 0;
};

} // namespace quillon

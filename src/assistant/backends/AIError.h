#pragma once

#include "platform/Error.h"

#include <QString>

#include <cstdint>

namespace quillon {

/// Why the on-device model gave no answer.
struct AIError {
    enum class Kind : std::uint8_t {
        onDeviceUnavailable, ///< `detail` is the message of the status
        onDevice,            ///< any other failure of the model that comes with the system
        localModel,          ///< any other failure of a model that the user has installed
        tooLong,             ///< more than the model can take in
        declined,
        badResponse, ///< an answer that can't be used
    };

    Kind kind = Kind::badResponse;
    QString detail = {}; ///< of the first three

    /// The sentence for people, to be shown as it stands.
    [[nodiscard]] QString description() const;

    bool operator==(const AIError&) const = default;
};

[[nodiscard]] Error asError(const AIError& error);

} // namespace quillon

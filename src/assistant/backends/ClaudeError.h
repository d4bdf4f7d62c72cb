#pragma once

#include "platform/Error.h"

#include <QString>

#include <cstdint>

namespace quillon {

/// Why Claude gave no answer.
struct ClaudeError {
    enum class Kind : std::uint8_t {
        http,        ///< any other status than 200; 0 for a sentence of our own
        network,     ///< the request could not be carried out; `detail` is the system's reason
        noKey,       ///< one is needed, and none or only white space was given
        invalidKey,  ///< 401 or 403
        rateLimited, ///< 429
        overloaded,  ///< 503 or 529
        refused,
        truncated,
        badResponse, ///< no JSON object, or no text in it
    };

    Kind kind = Kind::badResponse;
    int status = 0;      ///< of `http`
    QString detail = {}; ///< of `http`, what the server says, perhaps nothing; of `network`

    /// The sentence for people, to be shown as it stands.
    [[nodiscard]] QString description() const;

    bool operator==(const ClaudeError&) const = default;
};

[[nodiscard]] Error asError(const ClaudeError& error);

} // namespace quillon

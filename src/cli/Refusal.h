#pragma once

#include "service/Console.h"
#include "service/ExitCode.h"

#include <expected>

namespace quillon {

/// Why a command does nothing: one sentence, and the code that goes with it.
struct Refusal {
    ExitCode code;
    QString sentence;
};

template <typename T>
using Chosen = std::expected<T, Refusal>;

[[nodiscard]] inline std::unexpected<Refusal> refusal(ExitCode code, QString sentence) {
    return std::unexpected(Refusal{code, std::move(sentence)});
}

[[nodiscard]] inline ExitCode sayRefusal(const Refusal& refusal, const Console& console) {
    console.say(refusal.sentence);
    return refusal.code;
}

} // namespace quillon

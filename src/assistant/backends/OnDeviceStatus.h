#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace quillon {

/// Whether the on-device model can be asked.
struct OnDeviceStatus {
    enum class Kind : std::uint8_t {
        needsSetup,  ///< not now; the message says why, and what to do
        unsupported, ///< never on this machine
        available,
    };

    Kind kind = Kind::needsSetup;
    QString message = {}; ///< none when available

    bool operator==(const OnDeviceStatus&) const = default;
};

/// How things are with a model that comes with the operating system, in the order in which that is
/// looked at.
enum class SystemModelState : std::uint8_t {
    systemTooOld,
    ready,
    notEligible,
    notEnabled,
    downloading,
    other,
};

[[nodiscard]] OnDeviceStatus statusOf(SystemModelState state);

/// How things are with a model that a server on this machine runs.
struct LocalModelState {
    enum class Kind : std::uint8_t {
        hostRefused,  ///< the setting doesn't name this machine; `name` is the sentence about it
        serverAbsent, ///< nothing answers
        noModel,      ///< and none has been chosen
        notInstalled, ///< the one that has been chosen
        elsewhere,    ///< the chosen one is run by another machine
        cannotAnswer, ///< the chosen one is made for something else than answering
        downloading,
        loading,
        other, ///< the server says what can't be understood
        ready,
    };

    Kind kind = Kind::serverAbsent;
    QString name = {}; ///< of the model, as the server knows it
    int percent = 0;   ///< of the download

    bool operator==(const LocalModelState&) const = default;
};

/// Where a sentence is read, and so what it says to do.
enum class SaidIn : std::uint8_t { terminal, window };

[[nodiscard]] OnDeviceStatus statusOf(const LocalModelState& state,
                                      SaidIn where = SaidIn::terminal);

/// The same while this process downloads a model: one that is missing is on its way.
[[nodiscard]] LocalModelState whileDownloading(LocalModelState state, std::optional<int> percent);

} // namespace quillon

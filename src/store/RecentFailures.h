#pragma once

#include "platform/Clock.h"

#include <QHash>

#include <cstdint>
#include <utility>

namespace quillon {

/// For how long an automatic run doesn't try again what has failed: long enough that a broken
/// archive is not unpacked on every change around it, short enough for a disk that comes back.
inline constexpr std::chrono::hours failurePause{1};

/// Which rules of one folder have lately failed on which of its files, by their stable hashes. A
/// copy is cheap and another thread may use it.
class RecentFailures {
public:
    void add(std::uint64_t file, std::uint64_t rule, Timestamp now) {
        failures_.insert({file, rule}, now);
    }
    /// Looks at all of them, of which a folder may have many: to be called once a run.
    void forgetOld(Timestamp now) {
        failures_.removeIf([&](const auto& entry) { return isOver(entry.value(), now); });
    }
    [[nodiscard]] bool contains(std::uint64_t file, std::uint64_t rule, Timestamp now) const {
        const auto found = failures_.constFind({file, rule});
        return found != failures_.constEnd() && !isOver(*found, now);
    }

private:
    /// A failure in the future, after the clock was set back, holds nothing up.
    static bool isOver(Timestamp failed, Timestamp now) {
        return now < failed || now - failed >= failurePause;
    }

    QHash<std::pair<std::uint64_t, std::uint64_t>, Timestamp> failures_;
};

} // namespace quillon

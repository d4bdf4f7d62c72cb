#pragma once

#include "cli/Refusal.h"
#include "platform/Clock.h"

#include <optional>
#include <string>

namespace quillon {

/// What the options --since and --before ask for; nothing where one is not given.
struct TimeSpan {
    std::optional<Timestamp> since = {};
    std::optional<Timestamp> before = {};

    [[nodiscard]] bool contains(Timestamp moment) const {
        return (!since || moment >= *since) && (!before || moment < *before);
    }
};

/// Reads "today", "yesterday" or 2026-03-31, each with or without a time of the day such as 22:00,
/// and a time alone, which is today's. Where this machine is; a day without a time is its midnight.
/// Empty texts are not given ones.
[[nodiscard]] Chosen<TimeSpan> timeSpan(const std::string& since, const std::string& before,
                                        Timestamp now);

} // namespace quillon

#include "store/Schedules.h"

#include <algorithm>

namespace quillon {
namespace {

bool hasDateRule(const WatchedFolder& folder) {
    return std::ranges::any_of(folder.rules, [](const Rule& rule) {
        return rule.isEnabled &&
               std::ranges::any_of(rule.conditions, [](const Condition& condition) {
                   return isDate(condition.attribute);
               });
    });
}

std::optional<std::chrono::seconds> secondsOf(ScheduleInterval interval) {
    switch (interval) {
    case ScheduleInterval::off:
        return std::nullopt;
    case ScheduleInterval::every15Minutes:
        return std::chrono::minutes(15);
    case ScheduleInterval::hourly:
        return std::chrono::hours(1);
    case ScheduleInterval::every6Hours:
        return std::chrono::hours(6);
    case ScheduleInterval::daily:
        return std::chrono::hours(24);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::chrono::seconds> tidyInterval(const WatchedFolder& folder) {
    if (folder.timing() != TidyTiming::live)
        return secondsOf(folder.schedule);
    return hasDateRule(folder) ? std::optional(std::chrono::seconds(std::chrono::hours(24)))
                               : std::nullopt;
}

std::vector<QUuid> dueFolders(const std::vector<WatchedFolder>& folders,
                              const QHash<QUuid, Timestamp>& lastRun, Timestamp now) {
    std::vector<QUuid> due;
    for (const WatchedFolder& folder : folders) {
        const auto interval = tidyInterval(folder);
        if (!interval)
            continue;
        const auto last = lastRun.constFind(folder.id);
        if (last == lastRun.constEnd() || *last > now || now - *last >= *interval)
            due.push_back(folder.id);
    }
    return due;
}

} // namespace quillon

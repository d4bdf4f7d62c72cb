#include "model/TidyTiming.h"

namespace quillon {

namespace {

struct Timing {
    std::u16string_view label;
    bool isWatching;
    ScheduleInterval schedule;
};

constexpr auto timings = std::to_array<Timing>({
    {u"As files land", true, ScheduleInterval::off},
    {u"Every 15 minutes", false, ScheduleInterval::every15Minutes},
    {u"Every hour", false, ScheduleInterval::hourly},
    {u"Every 6 hours", false, ScheduleInterval::every6Hours},
    {u"Once a day", false, ScheduleInterval::daily},
    {u"Only when I ask", false, ScheduleInterval::off},
});
static_assert(timings.size() == rawValues<TidyTiming>.size());

const Timing& entryOf(TidyTiming timing) {
    return timings[static_cast<std::size_t>(timing)];
}

} // namespace

QString label(TidyTiming timing) {
    return toQString(entryOf(timing).label);
}

bool watchesLive(TidyTiming timing) {
    return entryOf(timing).isWatching;
}

ScheduleInterval scheduleOf(TidyTiming timing) {
    return entryOf(timing).schedule;
}

TidyTiming timingOf(bool isWatching, ScheduleInterval schedule) {
    if (isWatching)
        return TidyTiming::live;
    switch (schedule) {
    case ScheduleInterval::every15Minutes:
        return TidyTiming::every15;
    case ScheduleInterval::hourly:
        return TidyTiming::hourly;
    case ScheduleInterval::every6Hours:
        return TidyTiming::every6h;
    case ScheduleInterval::daily:
        return TidyTiming::daily;
    case ScheduleInterval::off:
        break;
    }
    return TidyTiming::manual;
}

} // namespace quillon

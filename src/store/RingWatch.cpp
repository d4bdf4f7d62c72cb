#include "store/RingWatch.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr unsigned mostLaps = 3;

// Together some megabytes at most.
constexpr qsizetype mostTravels = 20'000;
constexpr auto standsStill = std::chrono::hours(1);

} // namespace

unsigned Travel::laps(const RingParty& party) const {
    const auto step =
        std::ranges::find_if(steps_, [&](const Step& other) { return other.party == party; });
    return step == steps_.end() ? 0 : step->laps;
}

void Travel::add(const RingParty& party, Timestamp now) {
    last_ = now;
    const auto step =
        std::ranges::find_if(steps_, [&](const Step& other) { return other.party == party; });
    if (step == steps_.end())
        steps_.append({.party = party, .laps = 1});
    else
        ++step->laps;
}

QList<RingParty> Travel::partiesSince(const RingParty& first) const {
    QList<RingParty> parties;
    for (const Step& step : steps_)
        if (step.party == first || !parties.isEmpty())
            parties.append(step.party);
    return parties;
}

bool RingWatch::isOver(std::uint64_t file, const RingParty& party) const {
    const auto travel = travels_.constFind(file);
    return travel != travels_.constEnd() && travel->laps(party) >= mostLaps;
}

void RingWatch::follow(std::uint64_t file, const Travel& travel, Timestamp now) {
    if (travels_.size() >= mostTravels)
        travels_.removeIf(
            [&](const auto& entry) { return now - entry.value().lastStep() > standsStill; });
    if (travels_.size() < mostTravels)
        travels_.insert(file, travel);
}

} // namespace quillon

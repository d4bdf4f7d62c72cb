#include "faults/FaultRuns.h"

#include "faults/SyscallFaults.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/syscall.h>

namespace quillon::testing {
namespace {

/// More calls than any operation here makes; one that waits in a loop must not keep us for ever.
constexpr std::size_t mostCalls = 3000;

class Series {
public:
    explicit Series(const Scenario& scenario) : scenario_(scenario) {}

    /// One run in a world of its own. `decide` is asked first; without an answer of its own it
    /// leaves the call to the machine.
    using Decide = std::function<std::optional<SyscallDecision>(const SyscallStop&, World&)>;
    void run(const Decide& decide, const std::string& fault, Excuses excuses = {}) {
        World world(scenario_);
        run(world, decide, fault, excuses);
    }

    void run(World& world, const Decide& decide, const std::string& fault, const Excuses& excuses) {
        const TracedEnd end =
            runTraced([&] { return encodeReport(scenario_.operation.run(world.places)); },
                      [&](const SyscallStop& stop) {
                          const auto decision = decide(stop, world);
                          return decision ? *decision : ordinarily(scenario_.machine, stop);
                      });
        std::optional<Report> report;
        if (end.answer)
            report = decodeReport(*end.answer);
        else if (!end.killed)
            say(fault, "the operation crashed");
        ++findings_.points;
        for (const std::string& breach : breaches(world, world.read(), report, excuses))
            say(fault, breach);
        if (end.killed && scenario_.operation.recover)
            recover(world, fault + ", then started again");
        report_ = report.value_or(Report{});
    }

    void recover(World& world, const std::string& fault) {
        const Operation& operation = scenario_.operation;
        DecideSyscall decide; // only a journal is ever synced
        if (operation.isJournalled)
            decide = [&](const SyscallStop& stop) { return ordinarily(scenario_.machine, stop); };
        const TracedEnd end =
            runTraced([&] { return encodeReport(operation.recover(world.places)); }, decide);
        if (!end.answer)
            return say(fault, "crashed");
        const DiskState after = world.read();
        for (const auto& [path, item] : after)
            if (isHidden(path))
                say(fault, "left behind: " + path);
        for (const std::string& breach : breaches(world, after, std::nullopt))
            say(fault, breach);
        if (operation.isJournalled)
            for (const std::string& sentence : forgotten(world, after, decodeReport(*end.answer)))
                say(fault, sentence);
    }

    void say(const std::string& fault, const std::string& breach) {
        findings_.breaches.push_back(scenario_.name + ", " + fault + ": " + breach);
    }

    [[nodiscard]] const Report& report() const { return report_; }
    [[nodiscard]] const Findings& findings() const { return findings_; }

private:
    const Scenario& scenario_;
    Findings findings_;
    Report report_;
};

std::string named(const std::string& what, const SyscallStop& call) {
    return what + " #" + std::to_string(call.index) + " " + syscallName(call.number);
}

/// How often an operation waits for a child differs from run to run, so its calls can't be counted
/// through.
bool isSameCall(const SyscallStop& one, const SyscallStop& other) {
    return one.number == other.number && one.occurrence == other.occurrence;
}

struct Interference {
    const char* name;
    bool changesSource;
    void (*act)(World&);
};

constexpr Interference interferences[] = {
    {"a file of the wanted name appears before", false,
     [](World& world) { world.createFile(world.wanted); }},
    {"a dangling link of the wanted name appears before", false,
     [](World& world) { world.createDanglingLink(world.wanted); }},
    {"somebody writes to the source before", true,
     [](World& world) { world.overwrite(world.things.front()); }},
    {"somebody saves another file over the source before", true,
     [](World& world) { world.replace(world.things.front()); }},
};

/// An update that comes between the last look at a file and its removal is beyond any program: the
/// system has no call that does both.
bool removesSource(const SyscallStop& stop, const World& world) {
    if (!isRemoval(stop.number))
        return false;
    const bool hasFolder = stop.number == SYS_unlinkat;
    const std::string name = textArgument(stop, hasFolder ? 1 : 0);
    const std::string source = world.things.front().changingFile();
    return name == source || name == source.substr(source.rfind('/') + 1);
}

} // namespace

Findings killAtEachCall(const Scenario& scenario) {
    Series series(scenario);
    bool reached = true;
    for (std::size_t index = 0; reached && index < mostCalls; ++index) {
        reached = false;
        std::string fault = "killed at #" + std::to_string(index);
        series.run(
            [&](const SyscallStop& stop, World&) -> std::optional<SyscallDecision> {
                if (stop.index != index)
                    return std::nullopt;
                reached = true;
                return SyscallDecision::kill();
            },
            fault);
    }
    return series.findings();
}

Findings failEachCall(const Scenario& scenario) {
    Series series(scenario);
    for (const SyscallStop& call : callsOf(scenario))
        for (const int error : possibleErrors(call)) {
            // It sends trashed files to the top of the file system, and that may be the machine's.
            const bool leavesGround = error == EXDEV || error == EINVAL || error == EPERM;
            if (leavesGround && !Ground::instance().ownsMounts())
                continue;
            bool hasFailed = false;
            series.run(
                [&](const SyscallStop& stop, World&) -> std::optional<SyscallDecision> {
                    if (!isSameCall(stop, call))
                        return std::nullopt;
                    hasFailed = true;
                    return SyscallDecision::fail(error);
                },
                named(strerrorname_np(error) + std::string(" at"), call),
                {.leftovers = isRemoval(call.number), .faultyClearing = true});
            const bool isClaimed = std::ranges::all_of(series.report(), &Claim::succeeded);
            if (hasFailed && isSync(call.number) && isClaimed && !scenario.operation.isJournalled)
                series.say(named("after a failed", call), "all is said to be well");
        }
    return series.findings();
}

Findings failFromEachCallOn(const Scenario& scenario) {
    Series series(scenario);
    for (const SyscallStop& call : callsOf(scenario))
        for (const int error : {ENOSPC, EIO}) {
            const auto canFail = [error](const SyscallStop& stop) {
                const std::vector<int> errors = possibleErrors(stop);
                return std::ranges::find(errors, error) != errors.end();
            };
            if (!canFail(call))
                continue;
            series.run(
                [&](const SyscallStop& stop, World&) -> std::optional<SyscallDecision> {
                    if (stop.index < call.index || !canFail(stop))
                        return std::nullopt;
                    return SyscallDecision::fail(error);
                },
                named(strerrorname_np(error) + std::string(" from"), call) + " on",
                {.leftovers = error == EIO, .doubles = error == EIO});
        }
    return series.findings();
}

Findings interfereAtEachCall(const Scenario& scenario) {
    Series series(scenario);
    for (const Interference& interference : interferences)
        for (const SyscallStop& call : callsOf(scenario)) {
            const bool copies = call.number == SYS_copy_file_range || call.number == SYS_pread64;
            if (!goesByName(call.number) && !(interference.changesSource && copies))
                continue;
            World world(scenario);
            Excuses excuses;
            series.run(
                world,
                [&](const SyscallStop& stop, World& theirs) -> std::optional<SyscallDecision> {
                    if (isSameCall(stop, call)) {
                        interference.act(theirs);
                        excuses.lostUpdate =
                            interference.changesSource && removesSource(stop, theirs);
                    }
                    return std::nullopt;
                },
                named(interference.name, call), excuses);
        }
    return series.findings();
}

Findings runUndisturbed(const Scenario& scenario) {
    Series series(scenario);
    series.run([](const SyscallStop&, World&) { return std::nullopt; }, "undisturbed");
    for (const Claim& claim : series.report())
        if (!claim.succeeded)
            series.say("undisturbed", claim.thing + " failed: " + claim.message);
    if (series.report().empty())
        series.say("undisturbed", "nothing was done");
    return series.findings();
}

std::vector<SyscallStop> callsOf(const Scenario& scenario) {
    std::vector<SyscallStop> calls;
    World world(scenario);
    static_cast<void>(runTraced([&] { return encodeReport(scenario.operation.run(world.places)); },
                                [&](const SyscallStop& stop) {
                                    calls.push_back(stop);
                                    return ordinarily(scenario.machine, stop);
                                }));
    if (calls.size() > mostCalls)
        calls.resize(mostCalls);
    return calls;
}

} // namespace quillon::testing

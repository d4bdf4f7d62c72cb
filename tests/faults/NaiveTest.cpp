#include "faults/FaultRuns.h"
#include "faults/World.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::testing {
namespace {

/// What a program does that gives no thought to any of this: look, then write or rename. The
/// harness has to see through it.
bool naiveCopy(const std::string& from, const std::string& to) {
    const int in = open(from.c_str(), O_RDONLY);
    const int out = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    char bytes[4096];
    for (ssize_t count = 0; (count = read(in, bytes, sizeof bytes)) > 0;)
        if (write(out, bytes, static_cast<std::size_t>(count)) < 0)
            return false;
    close(in);
    close(out);
    return true;
}

Report naiveMove(const Places& places) {
    const std::string from = places.path("in/report.pdf");
    const std::string to = places.path("out/report.pdf");
    if (access(to.c_str(), F_OK) == 0)
        return {{from, false, from, "", "taken"}};
    if (rename(from.c_str(), to.c_str()) == 0)
        return {{from, true, to, "", ""}};
    naiveCopy(from, to);
    unlink(from.c_str());
    return {{from, true, to, "", ""}};
}

Report naiveCopyOnce(const Places& places) {
    const std::string from = places.path("in/report.pdf");
    const std::string to = places.path("out/report.pdf");
    const bool good = naiveCopy(from, to);
    return {{from, good, to, "contents only", good ? "" : std::strerror(errno)}};
}

Scenario naive(Law law, Report (*run)(const Places&), Devices devices = Devices::same) {
    return {.name = "naive",
            .operation = {.subjects = {{.name = "in/report.pdf",
                                        .tree = {{"", sampleFile("report", 50'000)}},
                                        .law = law}},
                          .wanted = "out/report.pdf",
                          .madeFolders = {},
                          .run = run},
            .devices = devices};
}

struct NaiveCase {
    const char* name;
    Scenario scenario;
    Findings (*faults)(const Scenario&);
    const char* fault;  ///< what must be among the findings,
    const char* breach; ///< and what it must have led to
};

void PrintTo(const NaiveCase& c, std::ostream* out) {
    *out << c.name;
}

class Naive : public ::testing::TestWithParam<NaiveCase> {};

TEST_P(Naive, isCaught) {
    if (const auto reason = tracingRefused())
        GTEST_SKIP() << *reason;
    const auto& [name, scenario, faults, fault, breach] = GetParam();
    if (const auto reason = missingFor(scenario))
        GTEST_SKIP() << *reason;
    const Findings findings = faults(scenario);
    EXPECT_TRUE(std::ranges::any_of(
        findings.breaches,
        [&](const std::string& found) { return found.find(breach) != std::string::npos; }))
        << "among " << findings.points << " runs nothing like: " << fault << ", " << breach << "\n"
        << ::testing::PrintToString(findings.breaches);
}

const auto otherDevice = Devices::outElsewhere;
INSTANTIATE_TEST_SUITE_P(
    Harness, Naive,
    ::testing::Values(NaiveCase{"killedCopy", naive(Law::copies, naiveCopyOnce), killAtEachCall,
                                "killed", "half-written"},
                      NaiveCase{"failedCopy", naive(Law::copies, naiveCopyOnce), failEachCall,
                                "ENOSPC at", "half-written"},
                      NaiveCase{"overwritingCopy", naive(Law::copies, naiveCopyOnce),
                                interfereAtEachCall, "a file of the wanted name",
                                "somebody else's"},
                      NaiveCase{"overwrittenLink", naive(Law::moves, naiveMove),
                                interfereAtEachCall, "a dangling link of the wanted name",
                                "somebody else's"},
                      NaiveCase{"falseSuccess", naive(Law::moves, naiveMove, otherDevice),
                                failEachCall, "EIO at", "is said to be"},
                      NaiveCase{"fullDevice", naive(Law::moves, naiveMove, otherDevice),
                                failFromEachCallOn, "ENOSPC from", "is whole nowhere"},
                      NaiveCase{"lostAttributes", naive(Law::moves, naiveMove, otherDevice),
                                runUndisturbed, "undisturbed", "is whole nowhere"},
                      NaiveCase{"lostUpdate", naive(Law::moves, naiveMove, otherDevice),
                                interfereAtEachCall, "writes to the source", "is whole nowhere"}),
    [](const auto& test) { return test.param.name; });

} // namespace
} // namespace quillon::testing

#include "faults/FaultRuns.h"
#include "faults/QuillonScenarios.h"
#include "faults/SyscallFaults.h"
#include "faults/World.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sys/syscall.h>

namespace quillon::testing {

void PrintTo(const Scenario& scenario, std::ostream* out);
void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.name;
}

namespace {

/// Whatever happens to Quillon in the middle of its work, nobody loses a byte.
class FileSafety : public ::testing::TestWithParam<Scenario> {
protected:
    void SetUp() override {
        if (const auto reason = tracingRefused()) {
            std::cerr << "THE FILE-SAFETY TESTS ARE NOT RUN: " << *reason << ".\n";
            GTEST_SKIP() << *reason;
        }
        if (const auto reason = missingFor(GetParam()))
            GTEST_SKIP() << *reason;
        // Libraries read their data on first use; that is no part of an operation.
        const World world(GetParam());
        static_cast<void>(GetParam().operation.run(world.places));
    }

    void expectNone(const Findings& findings) {
        std::cout << findings.points << " runs\n";
        EXPECT_GT(findings.points, 0U);
        constexpr std::size_t most = 20;
        for (std::size_t i = 0; i < std::min(most, findings.breaches.size()); ++i)
            ADD_FAILURE() << findings.breaches[i];
        EXPECT_LE(findings.breaches.size(), most) << "and more";
    }
};

TEST_P(FileSafety, undisturbed) {
    expectNone(runUndisturbed(GetParam()));
}
TEST_P(FileSafety, killedAtEachCall) {
    expectNone(killAtEachCall(GetParam()));
}
TEST_P(FileSafety, eachCallFails) {
    expectNone(failEachCall(GetParam()));
}
TEST_P(FileSafety, allFailsFromEachCallOn) {
    expectNone(failFromEachCallOn(GetParam()));
}
TEST_P(FileSafety, somebodyInterferes) {
    expectNone(interfereAtEachCall(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Quillon, FileSafety, ::testing::ValuesIn(quillonScenarios()),
                         [](const auto& test) { return test.param.name; });

/// No process can see a power cut coming, and no run here makes one; the order of calls is what
/// saves the file: its copy is on the disk before it has a name, the name before the source goes.
TEST(FileSafetyOrder, syncsBeforeItPublishesAndBeforeItRemoves) {
    const Scenario& scenario =
        *std::ranges::find(quillonScenarios(), "moveAcross", &Scenario::name);
    if (const auto reason = tracingRefused() ? tracingRefused() : missingFor(scenario))
        GTEST_SKIP() << *reason;
    std::string order;
    for (const SyscallStop& call : callsOf(scenario))
        order += isSync(call.number)                                         ? "S"
                 : call.number == SYS_renameat2 || call.number == SYS_linkat ? "P"
                 : isRemoval(call.number)                                    ? "R"
                                                                             : "";
    // The first attempt to rename finds out that there are two devices.
    EXPECT_EQ(order, "PSPSR");
}

/// The runs above are worth what they cover.
TEST(FileSafetyCoverage, killsAtAThousandPoints) {
    if (const auto reason = tracingRefused())
        GTEST_SKIP() << *reason;
    std::size_t points = 0;
    for (const Scenario& scenario : quillonScenarios())
        if (!missingFor(scenario))
            points += callsOf(scenario).size();
    std::cout << points << " kill points\n";
    EXPECT_GE(points, 1000U);
}

} // namespace
} // namespace quillon::testing

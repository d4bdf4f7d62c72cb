#include "faults/Promise.h"
#include "faults/QuillonScenarios.h"
#include "faults/World.h"
#include "support/SyscallTracer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <sys/statvfs.h>
#include <unistd.h>

namespace quillon::testing {

struct FullDiskCase {
    const char* scenario;
    bool allOnIt; ///< and not only where things go
};

void PrintTo(const FullDiskCase& full, std::ostream* out);
void PrintTo(const FullDiskCase& full, std::ostream* out) {
    *out << full.scenario;
}

namespace {

const Scenario& scenarioNamed(const std::string& name) {
    return *std::ranges::find(quillonScenarios(), name, &Scenario::name);
}

/// Takes up the room of a file system but for so many bytes, for as long as it lives.
class Filler {
public:
    Filler(const std::string& folder, std::size_t left) : path_(folder + "/filler") {
        struct statvfs room {};
        const int file = open(path_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        sync();
        if (file < 0 || statvfs(folder.c_str(), &room) != 0)
            return;
        const std::size_t free = room.f_bavail * room.f_bsize;
        isFull_ = free > left && posix_fallocate(file, 0, static_cast<off_t>(free - left)) == 0;
        close(file);
    }
    ~Filler() { removeTree(path_); }
    Filler(const Filler&) = delete;
    Filler& operator=(const Filler&) = delete;

    [[nodiscard]] bool isFull() const { return isFull_; }

private:
    std::string path_;
    bool isFull_ = false;
};

class FullDisk : public ::testing::TestWithParam<FullDiskCase> {
protected:
    /// Runs the operation with ever more room on the file system; the promise holds each time.
    void fillAndRun(const std::string& small) {
        const Scenario& scenario = scenarioNamed(GetParam().scenario);
        const std::string other = GetParam().allOnIt ? small : Ground::instance().near();
        int succeeded = 0;
        int failed = 0;
        for (const std::size_t kilobytes : {0, 8, 24, 40, 48, 60, 100, 400}) {
            const World world(scenario, {.in = other + "/in",
                                         .out = small + "/out",
                                         .trash = other + "/trash",
                                         .data = Ground::instance().base() + "/data"});
            const Filler filler(small, kilobytes * 1024);
            ASSERT_TRUE(filler.isFull());
            const TracedEnd end =
                runTraced([&] { return encodeReport(scenario.operation.run(world.places)); }, {});
            ASSERT_TRUE(end.answer) << "it crashed";
            const Report report = decodeReport(*end.answer);
            (std::ranges::all_of(report, &Claim::succeeded) ? succeeded : failed)++;
            EXPECT_EQ(breaches(world, world.read(), report), std::vector<std::string>())
                << kilobytes << " KiB left";
        }
        EXPECT_GT(succeeded, 0) << "it never had room enough";
        EXPECT_GT(failed, 0) << "it was never full";
    }

    void SetUp() override {
        if (const auto reason = tracingRefused())
            GTEST_SKIP() << *reason;
    }
};

TEST_P(FullDisk, inMemory) {
    const auto small = Ground::instance().mountTmpfs("size=1m");
    if (!small)
        GTEST_SKIP() << "no file system can be mounted on this machine";
    fillAndRun(*small);
}

TEST_P(FullDisk, ext4) {
    const auto small = Ground::instance().mountExt4(8);
    if (!small)
        GTEST_SKIP() << "no ext4 image can be mounted on this machine";
    fillAndRun(*small);
}

INSTANTIATE_TEST_SUITE_P(Quillon, FullDisk,
                         ::testing::Values(FullDiskCase{"moveAcross", false},
                                           FullDiskCase{"copyAcross", false},
                                           FullDiskCase{"moveFolderAcross", false},
                                           FullDiskCase{"tidyAcross", false},
                                           FullDiskCase{"unpack", true}),
                         [](const auto& test) { return test.param.scenario; });

} // namespace
} // namespace quillon::testing

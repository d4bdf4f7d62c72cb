#include "assistant/ChatFile.h"
#include "faults/SyscallFaults.h"
#include "platform/linux/LinuxStorage.h"
#include "support/ScratchFolder.h"
#include "support/SyscallTracer.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

std::vector<ChatTurn> turns(std::size_t count) {
    std::vector<ChatTurn> made(count);
    for (std::size_t i = 0; i < count; ++i) {
        made[i].id = QUuid::createUuidV5(QUuid(), QString::number(i));
        made[i].text = QString(5000, u'x');
    }
    return made;
}

TEST(ChatSafety, aSaveThatIsKilledLeavesTheConversationWhole) {
    if (const auto reason = tracingRefused())
        GTEST_SKIP() << *reason;
    const std::vector<ChatTurn> before = turns(2);
    const std::vector<ChatTurn> after = turns(3);
    std::size_t index = 0;
    for (bool isKilled = true; isKilled && !::testing::Test::HasFailure(); ++index) {
        SCOPED_TRACE(index);
        const ScratchFolder scratch;
        LinuxStorage storage;
        ChatFile file(storage, scratch.path("dobbin-chat.json"));
        ASSERT_TRUE(file.save(before));
        const TracedEnd end =
            runTraced([&] { return std::string(file.save(after) ? "done" : "failed"); },
                      [&](const SyscallStop& stop) {
                          return stop.index == index ? SyscallDecision::kill()
                                                     : ordinarily(Machine::able, stop);
                      });
        isKilled = end.killed;
        const auto loaded = file.load({});
        ASSERT_TRUE(loaded);
        EXPECT_FALSE(loaded->warning);
        EXPECT_TRUE(loaded->turns == after || (end.answer != "done" && loaded->turns == before));
    }
    EXPECT_GT(index, 5U);
}

} // namespace
} // namespace quillon::testing

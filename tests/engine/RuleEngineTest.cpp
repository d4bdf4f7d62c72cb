#include "engine/RuleEngine.h"

#include "support/FakeJudge.h"
#include "support/LinuxMachine.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(RuleEngine, CountsAndKeysWhatIsListed) {
    const testing::LinuxMachine machine;
    for (const char* name : {"a.txt", "b.txt.nextcloud", "sub/c.txt", "sub/d.txt.nextcloud"})
        machine.write(name, "text");
    testing::FakeJudge judge;
    const RuleEngine engine(machine.platform, judge);
    const struct {
        bool isRecursive;
        bool skipOnlineOnly;
        std::size_t onlineOnly;
        qsizetype keys;
    } rows[] = {{false, false, 1, 3}, {false, true, 1, 2}, {true, false, 2, 4}, {true, true, 2, 2}};
    for (const auto& row : rows) {
        WatchedFolder folder;
        folder.path = QString::fromStdString(machine.work() + '/');
        folder.isRecursive = row.isRecursive;
        folder.skipOnlineOnly = row.skipOnlineOnly;
        EXPECT_EQ(engine.onlineOnlyCount(folder), row.onlineOnly);
        const QSet<QString> before = *engine.currentKeys(folder);
        EXPECT_EQ(before.size(), row.keys);

        machine.write("a.txt", "longer");
        EXPECT_EQ((*engine.currentKeys(folder) - before).size(), 1);
        machine.write("a.txt", "text");
    }
}

} // namespace
} // namespace quillon

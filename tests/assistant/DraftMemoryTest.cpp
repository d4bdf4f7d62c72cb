#include "assistant/DraftMemory.h"

#include "platform/linux/LinuxStorage.h"
#include "support/LinuxMachine.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(DraftMemory, KnowsWhatWasShownLastForADay) {
    const LinuxMachine machine;
    LinuxStorage storage;
    const StorePlaces places(machine.home() + "/new/data");
    const auto memory = [&] { return DraftMemory(storage, machine.platform.fileSystem, places); };
    const QString folder = QString::fromStdString(machine.work());
    const QString link = QString::fromStdString(machine.home() + "/link");
    std::filesystem::create_directory_symlink(machine.work(), link.toStdString());
    const Timestamp now = std::chrono::sys_days(std::chrono::year(2026) / 5 / 23);
    const auto answer = [&](const QString& sentence, Timestamp at) {
        return memory().answer(folder, sentence, at).value_or(u"-"_s);
    };

    EXPECT_EQ(answer(u"a"_s, now), u"-");
    memory().remember(link, u"a"_s, u"first"_s, now);
    memory().remember(folder, u"a"_s, u"second"_s, now);
    EXPECT_EQ(answer(u"a"_s, now + std::chrono::hours(24)), u"second");
    EXPECT_EQ(memory().answer(link, u"a"_s, now), u"second"_s);
    EXPECT_EQ(answer(u"b"_s, now), u"-");
    EXPECT_EQ(memory().answer(folder + u"/b"_s, u"a"_s, now), std::nullopt);
    EXPECT_EQ(answer(u"a"_s, now + std::chrono::hours(25)), u"-");
    EXPECT_EQ(answer(u"a"_s, now - std::chrono::hours(1)), u"-") << "the clock was wrong";

    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(answer(u"a"_s, now), u"second") << i;
        memory().remember(folder, QString::number(i), u"x"_s, now);
    }
    EXPECT_EQ(answer(u"a"_s, now), u"-");
    EXPECT_EQ(answer(u"0"_s, now), u"x");
    memory().remember(folder, u"0"_s, QString(70'000, u'x'), now);
    EXPECT_EQ(answer(u"0"_s, now), u"-") << "the older one isn't what was shown";

    for (const char* broken : {"[", "{}", R"([{"folder":"/"}])"}) {
        ASSERT_TRUE(storage.writeDurably(places.drafts(), broken));
        EXPECT_EQ(answer(u"1"_s, now), u"-") << broken;
    }
    memory().remember(folder, u"1"_s, u"y"_s, now);
    EXPECT_EQ(answer(u"1"_s, now), u"y");
}

} // namespace
} // namespace quillon::testing

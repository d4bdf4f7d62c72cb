#include "store/RunMemory.h"

#include "engine/RuleEngine.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

QString key(const QString& path, int version = 1) {
    return path + u"|10|%1"_s.arg(version);
}

Rule rule(const QString& name) {
    Rule made;
    made.name = name;
    return made;
}

WatchedFolder folder(const QString& path, std::vector<Rule> rules) {
    WatchedFolder made;
    made.path = path;
    made.rules = std::move(rules);
    return made;
}

class RunMemoryTest : public ::testing::Test {
protected:
    RunMemory memory_;
    Timestamp now_{std::chrono::hours(500'000)};
    std::vector<LogEntry> entries_;

    /// One run in which the folder's rule takes one file, if it may, and leaves it at `after`.
    bool acts(const WatchedFolder& folder, const QString& before, const QString& after,
              std::size_t rule = 0, const QStringList& copies = {}) {
        return runs(folder, before, after, rule, copies, true);
    }
    bool actsWhenAsked(const WatchedFolder& folder, const QString& before, const QString& after) {
        return runs(folder, before, after, 0, {}, false);
    }
    void absorb(const WatchedFolder& folder, const RunResult& run,
                const FolderRestraint* restraint) {
        for (const LogEntry& entry : memory_.absorb(folder, run, restraint, now_))
            entries_.push_back(entry);
    }

private:
    bool runs(const WatchedFolder& folder, const QString& before, const QString& after,
              std::size_t rule, const QStringList& copies, bool isAutomatic) {
        const auto restraint = isAutomatic ? memory_.restraint(folder, now_) : nullptr;
        const bool may = !restraint || restraint->mayAct(folder.rules[rule], before);
        RunResult run;
        run.seenKeys = {before};
        if (may)
            run.handled = {{folder.rules[rule].id, before, after, copies}};
        absorb(folder, run, restraint.get());
        return may;
    }
};

TEST_F(RunMemoryTest, LeavesAFileAloneUntilItOrTheRuleChanges) {
    WatchedFolder home = folder(u"/d/"_s, {rule(u"A"_s)});
    EXPECT_FALSE(memory_.hasChanged());
    EXPECT_TRUE(acts(home, key(u"/d/a"_s), key(u"/d/x-a"_s)));
    EXPECT_TRUE(memory_.hasChanged());
    const auto again = [&] { return acts(home, key(u"/d/x-a"_s), key(u"/d/x-a"_s)); };
    EXPECT_FALSE(again());
    home.rules[0].name = u"B"_s;
    home.rules[0].conditions[0].id = QUuid::createUuid();
    EXPECT_FALSE(again());

    const QByteArray bytes = memory_.encode();
    EXPECT_FALSE(memory_.hasChanged());
    memory_.decode(bytes);
    EXPECT_FALSE(again());
    EXPECT_TRUE(acts(home, key(u"/d/x-a"_s, 2), key(u"/d/x-a"_s, 2))) << "the file has changed";
    EXPECT_TRUE(actsWhenAsked(home, key(u"/d/x-a"_s, 2), key(u"/d/x-a"_s, 2)));
    EXPECT_FALSE(acts(home, key(u"/d/x-a"_s, 2), key(u"/d/x-a"_s, 2)));
    home.rules[0].actions[0].destination = u"~/Else"_s;
    EXPECT_TRUE(again()) << "the rule has changed";

    memory_.keepOnly({});
    EXPECT_TRUE(again()) << "the folder was let go in between";
    for (const QByteArray& broken :
         {bytes.chopped(1), QByteArray("[]"), QByteArray(bytes).replace("\":{", "\":[{")}) {
        memory_.decode(broken);
        EXPECT_EQ(memory_.encode(), R"({"folders":{}})");
    }
}

TEST_F(RunMemoryTest, LetsEachRuleOfAFolderActOnceHoweverTheyUndoEachOther) {
    WatchedFolder home = folder(u"/d"_s, {rule(u"A"_s), rule(u"B"_s)});
    EXPECT_TRUE(acts(home, key(u"/d/x"_s), key(u"/d/y"_s), 0));
    EXPECT_TRUE(acts(home, key(u"/d/y"_s), key(u"/d/x"_s), 1));
    EXPECT_FALSE(acts(home, key(u"/d/x"_s), key(u"/d/y"_s), 0));

    home.isRecursive = true;
    EXPECT_TRUE(acts(home, key(u"/d/z"_s), key(u"/d/z"_s), 0, {key(u"/d/in/z"_s)}));
    EXPECT_FALSE(acts(home, key(u"/d/in/z"_s), key(u"/d/in/z"_s), 0)) << "its own copy";
}

TEST_F(RunMemoryTest, StopsARingAfterTheThirdLapAndSaysSoOnce) {
    const WatchedFolder start = folder(u"/h/In"_s, {rule(u"S"_s)});
    const WatchedFolder downloads = folder(u"/h/Downloads"_s, {rule(u"A"_s)});
    const WatchedFolder desktop = folder(u"/h/Desktop"_s, {rule(u"B"_s)});
    memory_.keepOnly({start, downloads, desktop});
    const QString here = key(u"/h/Downloads/f"_s);
    const QString there = key(u"/h/Desktop/f"_s);
    const auto laps = [&] {
        int count = 0;
        while (count < 10 && acts(downloads, here, there) && acts(desktop, there, here))
            ++count;
        return count;
    };
    EXPECT_TRUE(acts(start, key(u"/h/In/f"_s), here));
    EXPECT_EQ(laps(), 3);
    ASSERT_EQ(entries_.size(), 1U);
    const LogEntry& entry = entries_[0];
    EXPECT_EQ(entry.actionSummary, u"stopped: the rules “A” (Downloads) and “B” (Desktop) keep "
                                   "handing this file to each other"_s);
    EXPECT_TRUE(entry.isError);
    EXPECT_FALSE(entry.canUndo());
    EXPECT_EQ(entry.currentPath, u"/h/Downloads/f"_s);
    EXPECT_EQ(entry.folderID, downloads.id);
    EXPECT_EQ(laps(), 0);
    EXPECT_EQ(entries_.size(), 1U);

    EXPECT_TRUE(actsWhenAsked(downloads, here, there));
    EXPECT_TRUE(acts(desktop, there, here));
    EXPECT_EQ(laps(), 2) << "the other folder's rule had begun this time";
    EXPECT_EQ(entries_.size(), 2U);

    int copies = 0;
    for (QString name = u"c"_s; copies < 10; ++copies) {
        const QString original = key(u"/h/Downloads/"_s + name);
        if (!acts(downloads, original, original, 0, {key(u"/h/Desktop/"_s + name)}))
            break;
        const QString next = name + u" 2"_s;
        if (!acts(desktop, key(u"/h/Desktop/"_s + name), key(u"/h/Downloads/"_s + next)))
            break;
        name = next;
    }
    EXPECT_EQ(copies, 3) << "copies that come back count as the file";
}

TEST_F(RunMemoryTest, ForgetsOnlyFilesThatAreSurelyGone) {
    const WatchedFolder home = folder(u"/d"_s, {rule(u"A"_s)});
    const auto name = [](int i) { return key(u"/d/%1"_s.arg(i)); };
    RunResult many;
    for (int i = 0; i < 9'000; ++i)
        many.handled.push_back({home.rules[0].id, name(i), name(i)});
    absorb(home, many, nullptr);
    now_ += std::chrono::hours(1);
    RunResult young;
    young.handled = {{home.rules[0].id, name(9'001), name(9'001)}};
    absorb(home, young, nullptr);

    const auto isRemembered = [&](int i) {
        return !memory_.restraint(home, now_)->mayAct(home.rules[0], name(i));
    };
    RunResult later;
    later.seenKeys = {name(1)};
    later.interrupted = true;
    absorb(home, later, nullptr);
    EXPECT_TRUE(isRemembered(2));
    later.interrupted = false;
    absorb(home, later, nullptr);
    EXPECT_TRUE(isRemembered(1)) << "seen";
    EXPECT_FALSE(isRemembered(2)) << "gone";
    EXPECT_TRUE(isRemembered(9'001)) << "acted on just now, and perhaps still settling";
}

} // namespace
} // namespace quillon::testing

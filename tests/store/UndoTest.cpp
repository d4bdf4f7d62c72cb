#include "store/Undo.h"

#include "support/PrintQt.h"
#include "support/StoreBench.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;

class UndoTest : public ::testing::Test {
protected:
    /// Logs that the file `original` is now at `current`.
    LogEntry logMove(const char* original, const char* current) {
        LogEntry entry;
        entry.date = SystemClock().now();
        entry.undoable = true;
        entry.originalPath = path(original);
        entry.currentPath = path(current);
        entry.batchID = batch_;
        logs_.push_back(entry);
        return entry;
    }
    QString path(const char* name) { return QString::fromStdString(machine_.at(name)); }

    std::vector<UndoOutcome> undo(std::vector<LogEntry> entries) {
        return Undo(machine_.platform.fileSystem, machine_.platform.trash, *run_)
            .run(std::move(entries));
    }
    UndoOutcome undo(const LogEntry& entry) { return undo(std::vector{entry}).at(0); }

    StoreBench bench_;
    LinuxMachine& machine_ = bench_.machine;
    std::unique_ptr<StoreSession> session_ = bench_.open();
    std::unique_ptr<JournalledRun> run_ = session_->journal().beginRun();
    std::vector<LogEntry> logs_;
    QUuid batch_ = QUuid::createUuid();
};

TEST_F(UndoTest, putsAFileBack) {
    struct Case {
        const char* name;
        const char* original;
        const char* occupant; ///< what stands at the original place, if anything
        const char* restored; ///< where it ends; nullptr when it can't be put back
        const char* current;
    };
    const Case cases[] = {
        {"simply", "a.txt", nullptr, "a.txt", "out/a.txt"},
        {"its folder is made again", "gone/deep/b.txt", nullptr, "gone/deep/b.txt", "out/b.txt"},
        {"its place is taken", "c.txt", "c.txt", "c 2.txt", "out/c.txt"},
        {"it is not there any more", "d.txt", nullptr, nullptr, nullptr},
        {"a file stands where its folder was", "e/e.txt", "e", nullptr, "out/e.txt"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        if (c.current)
            machine_.write(c.current, c.name);
        if (c.occupant)
            machine_.write(c.occupant, "occupant");
        const LogEntry entry = logMove(c.original, c.current ? c.current : "out/none");
        const UndoOutcome outcome = undo(entry);
        ASSERT_EQ(outcome.restored.has_value(), c.restored != nullptr);
        if (c.restored) {
            EXPECT_EQ(*outcome.restored, machine_.at(c.restored));
            EXPECT_EQ(machine_.contents(c.restored), c.name);
            EXPECT_EQ(outcome.note, QString());
        } else if (c.current) {
            EXPECT_EQ(machine_.contents(c.current), c.name);
        }
        if (c.occupant) {
            EXPECT_EQ(machine_.contents(c.occupant), "occupant");
        }
    }
}

TEST_F(UndoTest, takesAFileOutOfTheTrashWithItsRecord) {
    const std::string trashed = *machine_.platform.trash.put(machine_.write("a.txt", "text"));
    const fs::path info = fs::path(trashed).parent_path().parent_path() / "info";
    ASSERT_FALSE(fs::is_empty(info));
    LogEntry entry = logMove("a.txt", "");
    entry.currentPath.reset();
    entry.trashedPath = QString::fromStdString(trashed);
    EXPECT_TRUE(undo(entry).restored);
    EXPECT_EQ(machine_.contents("a.txt"), "text");
    EXPECT_TRUE(fs::is_empty(info));
}

TEST_F(UndoTest, saysThatAFileHasChangedSince) {
    const LogEntry entry = logMove("a.txt", "out/a.txt");
    machine_.write("out/a.txt", "another");
    fs::last_write_time(machine_.at("out/a.txt"),
                        fs::file_time_type::clock::now() + std::chrono::minutes(1));
    EXPECT_EQ(undo(entry).note, u"it has been changed or replaced since"_s);
}

TEST_F(UndoTest, followsAFileBackThroughSeveralEntries) {
    machine_.write("c.txt", "text");
    const LogEntry second = logMove("b.txt", "c.txt");
    const LogEntry first = logMove("a.txt", "b.txt");
    for (const UndoOutcome& outcome : undo({second, first}))
        EXPECT_TRUE(outcome.restored);
    EXPECT_EQ(machine_.tree(), std::set<std::string>{"a.txt"});
}

TEST_F(UndoTest, stopsWhenAskedTo) {
    machine_.write("out/a.txt", "");
    machine_.write("out/b.txt", "");
    const std::vector entries{logMove("a.txt", "out/a.txt"), logMove("b.txt", "out/b.txt")};
    std::size_t done = 0;
    const auto outcomes = Undo(machine_.platform.fileSystem, machine_.platform.trash, *run_)
                              .run(
                                  entries, [&](std::size_t count, std::size_t) { done = count; },
                                  [&] { return done == 0; });
    EXPECT_EQ(outcomes.size(), 1u);
    EXPECT_EQ(machine_.tree(), (std::set<std::string>{"a.txt", "out/", "out/b.txt"}));
}

TEST_F(UndoTest, takesTheNewestWhoseFileIsStillThere) {
    const LogEntry gone = logMove("a.txt", "out/a.txt");
    const LogEntry there = logMove("b.txt", "out/b.txt");
    EXPECT_EQ(newestUndoable(logs_, machine_.platform.fileSystem)->id,
              gone.id); // to say what is wrong with it
    machine_.write("out/b.txt", "");
    EXPECT_EQ(newestUndoable(logs_, machine_.platform.fileSystem)->id, there.id);
}

TEST_F(UndoTest, refusesWhatIsNoMove) {
    const struct {
        void (*spoil)(LogEntry& entry);
    } cases[] = {
        {[](LogEntry& entry) { entry.undoable = false; }},
        {[](LogEntry& entry) { entry.originalPath.reset(); }},
        {[](LogEntry& entry) { entry.currentPath.reset(); }},
    };
    machine_.write("out/a.txt", "text");
    for (const auto& c : cases) {
        logs_.clear();
        LogEntry entry = logMove("a.txt", "out/a.txt");
        c.spoil(entry);
        logs_ = {entry};
        EXPECT_FALSE(undo(entry).restored);
        EXPECT_TRUE(undoableOfBatch(logs_, batch_).empty());
        EXPECT_FALSE(newestUndoable(logs_, machine_.platform.fileSystem));
        EXPECT_EQ(machine_.contents("out/a.txt"), "text");
    }
}

TEST_F(UndoTest, aBatchComesBackThoughItsFilesTookEachOthersNames) {
    machine_.write("1.txt", "was 2");
    machine_.write("2.txt", "was 3");
    machine_.write("keep.txt", "of another batch");
    logMove("2.txt", "1.txt");
    logMove("3.txt", "2.txt");
    logMove("other.txt", "keep.txt");
    logs_.back().batchID = QUuid::createUuid();
    EXPECT_EQ(undo(undoableOfBatch(logs_, batch_)).size(), 2u);
    EXPECT_EQ(machine_.contents("2.txt"), "was 2");
    EXPECT_EQ(machine_.contents("3.txt"), "was 3");
    EXPECT_EQ(machine_.tree(), (std::set<std::string>{"2.txt", "3.txt", "keep.txt"}));
}

} // namespace
} // namespace quillon::testing

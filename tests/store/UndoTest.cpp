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
        state_.logs.push_back(entry);
        return entry;
    }
    QString path(const char* name) { return QString::fromStdString(machine_.at(name)); }

    LinuxMachine machine_;
    PersistedState state_;
    QUuid batch_ = QUuid::createUuid();
    Undo undo_{machine_.platform.fileSystem, machine_.platform.trash, state_};
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
        const UndoOutcome outcome = undo_.entry(entry);
        ASSERT_EQ(outcome.restored.has_value(), c.restored != nullptr);
        const bool stillLogged = std::ranges::count(state_.logs, entry.id, &LogEntry::id) == 1;
        EXPECT_EQ(stillLogged, c.restored == nullptr);
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
    EXPECT_TRUE(undo_.entry(entry).restored);
    EXPECT_EQ(machine_.contents("a.txt"), "text");
    EXPECT_TRUE(fs::is_empty(info));
}

TEST_F(UndoTest, saysThatAFileHasChangedSince) {
    const LogEntry entry = logMove("a.txt", "out/a.txt");
    machine_.write("out/a.txt", "another");
    fs::last_write_time(machine_.at("out/a.txt"),
                        fs::file_time_type::clock::now() + std::chrono::minutes(1));
    EXPECT_EQ(undo_.entry(entry).note, u"it has been changed or replaced since"_s);
}

TEST_F(UndoTest, takesTheNewestWhoseFileIsStillThere) {
    const LogEntry gone = logMove("a.txt", "out/a.txt");
    const LogEntry there = logMove("b.txt", "out/b.txt");
    EXPECT_EQ(undo_.newest()->id, gone.id); // to say what is wrong with it
    machine_.write("out/b.txt", "");
    EXPECT_EQ(undo_.newest()->id, there.id);
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
        state_.logs.clear();
        LogEntry entry = logMove("a.txt", "out/a.txt");
        c.spoil(entry);
        state_.logs = {entry};
        EXPECT_FALSE(undo_.entry(entry).restored);
        EXPECT_TRUE(undo_.batch(batch_).empty());
        EXPECT_FALSE(undo_.newest());
        EXPECT_EQ(machine_.contents("out/a.txt"), "text");
    }
}

TEST_F(UndoTest, aBatchComesBackThoughItsFilesTookEachOthersNames) {
    machine_.write("1.txt", "was 2");
    machine_.write("2.txt", "was 3");
    machine_.write("keep.txt", "of another batch");
    logMove("2.txt", "1.txt");
    logMove("3.txt", "2.txt");
    LogEntry other = logMove("other.txt", "keep.txt");
    state_.logs.back().batchID = QUuid::createUuid();
    EXPECT_EQ(undo_.batch(batch_).size(), 2u);
    EXPECT_EQ(machine_.contents("2.txt"), "was 2");
    EXPECT_EQ(machine_.contents("3.txt"), "was 3");
    EXPECT_EQ(machine_.tree(), (std::set<std::string>{"2.txt", "3.txt", "keep.txt"}));
    ASSERT_EQ(state_.logs.size(), 1u);
    EXPECT_EQ(state_.logs[0].id, other.id);
}

} // namespace
} // namespace quillon::testing

#include "engine/RuleEngine.h"
#include "faults/DiskState.h"
#include "faults/World.h"
#include "store/Undo.h"
#include "support/FakeJudge.h"
#include "support/StoreBench.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A folder with files, what rules do to all of them, and the log.
class Sequence {
public:
    Sequence() {
        for (const std::string name : {"a.pdf", "b.txt", "c.txt", "sub/d.jpg"}) {
            machine_.makeFolder("sub");
            writeItem(machine_.at(name), sampleFile(name, 200));
        }
        before_ = files();
    }

    void act(RuleAction action) {
        if (action.type == ActionType::move || action.type == ActionType::copy)
            action.destination = QString::fromStdString(
                machine_.at(action.sortBy == SortStrategy::byKind ? "One" : "Two"));
        Rule rule;
        rule.name = u"Rule"_s;
        rule.conditions = {{.attribute = ConditionAttribute::size,
                            .op = MatchOperator::greaterThan,
                            .value = u"0"_s}};
        rule.actions = {std::move(action)};
        WatchedFolder folder;
        folder.path = QString::fromStdString(machine_.work());
        folder.isRecursive = true;
        const RuleEngine engine(machine_.platform, judge_, {.settleTime = {}});
        const auto run = session_->journal().beginRun();
        const RunResult result = engine.execute(*engine.readyFiles(folder), {rule}, folder, {},
                                                QUuid::createUuid(), *run);
        session_->state().addLogs(result.entries);
    }

    /// Every entry gets back, or says why not.
    void undo(const std::vector<LogEntry>& entries) {
        const auto run = session_->journal().beginRun();
        const auto outcomes =
            Undo(machine_.platform.fileSystem, machine_.platform.trash, *run).run(entries);
        RC_ASSERT(outcomes.size() == entries.size());
        for (const UndoOutcome& outcome : outcomes)
            if (outcome.restored)
                std::erase_if(log(),
                              [&](const LogEntry& entry) { return entry.id == outcome.entry.id; });
            else
                RC_ASSERT(!outcome.restored.error().message.isEmpty());
    }

    std::vector<LogEntry>& log() { return session_->state().logs; }

    /// Every file below the home folder, the trash too, as people would compare them.
    using Files = std::vector<std::pair<std::string, DiskItem>>;
    Files files() {
        Files found;
        for (auto& [path, item] : readDisk({machine_.home()}))
            if (!item.isFolder() && !path.starts_with(bench_.places.folder) &&
                !path.ends_with(".trashinfo"))
                found.emplace_back(path, item);
        return found;
    }
    const Files& before() const { return before_; }

private:
    StoreBench bench_;
    LinuxMachine& machine_ = bench_.machine;
    FakeJudge judge_;
    std::unique_ptr<StoreSession> session_ = bench_.open();
    Files before_;
};

bool isSame(const Sequence::Files& one, const Sequence::Files& other) {
    return std::ranges::equal(one, other, [](const auto& left, const auto& right) {
        return left.first == right.first && left.second.isSameFileAs(right.second) &&
               isSameItem(left.second, right.second, Likeness::whole);
    });
}

RuleAction anyAction(bool movesOnly) {
    std::vector<RuleAction> actions{
        {.type = ActionType::move, .sortBy = SortStrategy::byKind},
        {.type = ActionType::move, .sortBy = SortStrategy::byMonth},
        {.type = ActionType::rename, .renamePattern = u"same"_s},
        {.type = ActionType::rename, .renamePattern = u"{counter}-{name}"_s},
        {.type = ActionType::sortIntoSubfolder, .sortBy = SortStrategy::byExtension},
        {.type = ActionType::trash},
    };
    if (!movesOnly) {
        actions.push_back({.type = ActionType::copy, .sortBy = SortStrategy::byKind});
        actions.push_back({.type = ActionType::addTag});
    }
    return *rc::gen::elementOf(actions);
}

RC_GTEST_PROP(UndoSequences, newestFirstEndInTheIdenticalTree, ()) {
    Sequence sequence;
    for (int step = *rc::gen::inRange(1, 6); step > 0; --step) {
        sequence.act(anyAction(true));
        if (const auto& log = sequence.log(); !log.empty() && *rc::gen::arbitrary<bool>())
            sequence.undo(undoableOfBatch(log, *log.front().batchID));
    }
    while (!sequence.log().empty()) {
        const std::vector<LogEntry> log = sequence.log();
        sequence.undo(*rc::gen::arbitrary<bool>() ? log : std::vector{log.front()});
        RC_ASSERT(sequence.log().size() < log.size());
    }
    RC_ASSERT(isSame(sequence.files(), sequence.before()));
}

RC_GTEST_PROP(UndoSequences, inAnyOrderLoseNothing, ()) {
    Sequence sequence;
    for (int step = *rc::gen::inRange(1, 6); step > 0; --step) {
        sequence.act(anyAction(false));
        if (!sequence.log().empty())
            sequence.undo({*rc::gen::elementOf(sequence.log())});
    }
    for (auto log = sequence.log(); !log.empty(); log.pop_back())
        sequence.undo({*rc::gen::elementOf(log)});
    std::multiset<std::string> left;
    for (const auto& [path, item] : sequence.files())
        left.insert(item.content);
    for (const auto& [path, item] : sequence.before()) {
        RC_ASSERT(left.contains(item.content));
        left.erase(left.find(item.content));
    }
}

} // namespace
} // namespace quillon::testing

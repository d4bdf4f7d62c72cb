#include "faults/SyscallFaults.h"
#include "store/Undo.h"
#include "support/PrintQt.h"
#include "support/StoreBench.h"
#include "support/SyscallTracer.h"

#include <gtest/gtest.h>

#include <cstring>

namespace quillon::testing {

namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;

/// Something that Quillon does to its own files.
struct StoreCase {
    const char* name;
    void (*prepare)(StoreBench& bench);
    /// False when it says that it failed.
    bool (*operate)(StoreBench& bench);
    /// What the log then tells. Where the operation did not say that it had succeeded, it may be as
    /// if it had not been.
    const char* log;
    bool looksForFiles = false; ///< and has to do with what it can see of them
};

void PrintTo(const StoreCase& c, std::ostream* out) {
    *out << c.name;
}

LogEntry entryNamed(const QString& name, const StoreBench& bench) {
    return {.id = QUuid::createUuidV5(QUuid(), name),
            .date = bench.clock.now(),
            .fileName = name,
            .actionSummary = u"moved to One"_s};
}

PersistedState firstState(const StoreBench& bench) {
    PersistedState state;
    state.folders.resize(3);
    for (WatchedFolder& folder : state.folders)
        folder.id = QUuid::createUuidV5(QUuid(), u"folder"_s);
    state.logs = {entryNamed(u"a"_s, bench), entryNamed(u"b"_s, bench)};
    state.processedFiles[u"F3A6C1D8-7B20-45E9-AD34-90C2B1E8F7A5"_s] = {u"key"_s};
    state.isPaused = true;
    state.other.insert(u"ofANewerVersion"_s, 1);
    return state;
}

void saveFirst(StoreBench& bench) {
    const auto session = bench.open();
    session->state() = firstState(bench);
    ASSERT_TRUE(session->save());
}

void addThird(PersistedState& state, const StoreBench& bench) {
    state.addLogs({entryNamed(u"c"_s, bench)});
    state.isPaused = false;
}

bool openAnd(StoreBench& bench, bool (*work)(StoreSession&, StoreBench&)) {
    const auto session = StoreSession::open(bench.places, bench.services);
    return session && work(**session, bench);
}

bool addAndSave(StoreSession& session, StoreBench& bench) {
    addThird(session.state(), bench);
    return session.save().has_value();
}

bool launch(StoreBench& bench) {
    return openAnd(bench, [](StoreSession& session, StoreBench&) {
        return session.rewriteAtLaunch().has_value();
    });
}

/// An earlier launch that ended before anything was saved.
void launchFirst(StoreBench& bench) {
    saveFirst(bench);
    ASSERT_TRUE(launch(bench));
}

/// A run killed when it had moved one file and told, and moved another and not told; and an undo
/// killed when it had put one of two files back.
void interruptFirst(StoreBench& bench) {
    LinuxMachine& machine = bench.machine;
    machine.makeFolder("One");
    std::vector<Intent> intents;
    for (const char* name : {"c.txt", "d.txt", "e.txt", "f.txt"}) {
        machine.write(name, name);
        intents.push_back(bench.intentFor(name, {machine.at("One")}));
        intents.back().entry.id = entryNamed(QString::fromUtf8(name), bench).id;
    }
    const auto session = bench.open();
    session->state() = firstState(bench);
    for (std::size_t i : {2, 3}) {
        LogEntry logged = intents[i].entry;
        logged.undoable = true;
        logged.originalPath = QString::fromStdString(machine.at("back/") + char('e' + i - 2));
        session->state().logs.push_back(logged);
    }
    ASSERT_TRUE(session->save());

    const auto run = session->journal().beginRun();
    ASSERT_TRUE(run->intend(std::span(intents).first(2)));
    fs::rename(machine.at("c.txt"), machine.at("One/c.txt"));
    LogEntry told = intents[0].entry;
    told.actionSummary = u"moved to One"_s;
    told.undoable = true;
    told.currentPath = QString::fromStdString(machine.at("One/c.txt"));
    run->record(told);
    fs::rename(machine.at("d.txt"), machine.at("One/d.txt"));

    const auto undo = session->journal().beginRun();
    for (std::size_t i : {2, 3}) {
        intents[i].entry = session->state().logs[i];
        intents[i].targetFolders = {machine.makeFolder("back")};
    }
    ASSERT_TRUE(undo->intendUndo(std::span(intents).subspan(2)));
    fs::rename(machine.at("e.txt"), machine.at("back/e"));
}

std::string told(const PersistedState& state) {
    QStringList lines;
    for (const LogEntry& entry : state.logs)
        lines.append(entry.fileName + u' ' + entry.actionSummary);
    return lines.join(u"; "_s).toStdString();
}

/// All of it but the paths, which differ from bench to bench.
std::string summary(const PersistedState& state) {
    PersistedState rest = state;
    rest.logs.clear();
    return encodeState(rest).toStdString() + told(state);
}

bool openOnly(StoreBench& bench) {
    return openAnd(bench, [](StoreSession&, StoreBench&) { return true; });
}

constexpr const char* firstLog = "a moved to One; b moved to One";
constexpr const char* withThird = "c moved to One; a moved to One; b moved to One";
const StoreCase storeCases[] = {
    {"aSave", saveFirst, [](StoreBench& bench) { return openAnd(bench, addAndSave); }, withThird},
    {"theFirstSave", [](StoreBench&) {},
     [](StoreBench& bench) {
         return openAnd(bench, [](StoreSession& session, StoreBench& theirs) {
             session.state() = firstState(theirs);
             return session.save().has_value();
         });
     },
     firstLog},
    {"aLaunch", saveFirst, launch, firstLog},
    {"aLaunchAfterOneThatCrashed", launchFirst, launch, firstLog},
    {"aLaunchAndTheFirstSaveAfterIt", saveFirst,
     [](StoreBench& bench) {
         return openAnd(bench, [](StoreSession& session, StoreBench& theirs) {
             return session.rewriteAtLaunch() && addAndSave(session, theirs);
         });
     },
     withThird},
    {"aRecovery", interruptFirst, openOnly,
     "c.txt moved to One; d.txt moved to One, then interrupted; a moved to One; b moved to One; "
     "f.txt ",
     true},
    {"aRecoveryAndALaunch", interruptFirst, launch,
     "c.txt moved to One; d.txt moved to One, then interrupted; a moved to One; b moved to One; "
     "f.txt ",
     true},
};

class StoreSafety : public ::testing::TestWithParam<StoreCase> {
protected:
    void SetUp() override {
        if (const auto reason = tracingRefused())
            GTEST_SKIP() << *reason;
        StoreBench untouched;
        GetParam().prepare(untouched);
        old_ = summary(untouched.open()->state());
        StoreBench done;
        GetParam().prepare(done);
        ASSERT_TRUE(GetParam().operate(done));
        const auto session = done.open();
        EXPECT_EQ(told(session->state()), GetParam().log);
        new_ = summary(session->state());
    }

    /// Runs the operation under a fault and looks at what is left, twice: what the first opening
    /// takes in must stay.
    TracedEnd runAndLook(const DecideSyscall& decide) {
        StoreBench bench;
        GetParam().prepare(bench);
        const auto operate = [&] { return std::string(GetParam().operate(bench) ? "done" : ""); };
        TracedEnd end = runTraced(operate, decide);
        for (int time = 0; time < 2; ++time) {
            const auto session = bench.open();
            if (!session)
                return end;
            const std::string found = summary(session->state());
            EXPECT_TRUE(found == new_ || (end.answer != "done" && found == old_) ||
                        isKeptAside(bench))
                << found;
            EXPECT_EQ(session->warnings().filter(u"can't be read"_s), QStringList());
            for (const auto& file : fs::directory_iterator(bench.places.folder))
                EXPECT_FALSE(file.path().filename().string().starts_with(".quillon")) << file;
        }
        return end;
    }

    /// Whether what nobody was allowed to read is whole under another name.
    bool isKeptAside(StoreBench& bench) const {
        for (const auto& file : fs::directory_iterator(bench.places.folder))
            if (file.path().filename().string().find(".unreadable-") != std::string::npos)
                if (const auto kept = StateFile(bench.storage, file.path()).read({}))
                    return kept->folders.size() == 3;
        return false;
    }

    std::string old_;
    std::string new_;
};

TEST_P(StoreSafety, killedAtEachCall) {
    std::size_t index = 0;
    for (TracedEnd end{.answer = {}, .killed = true}; end.killed && !HasFailure(); ++index) {
        SCOPED_TRACE(index);
        end = runAndLook([&](const SyscallStop& stop) {
            return stop.index == index ? SyscallDecision::kill() : ordinarily(Machine::able, stop);
        });
    }
    EXPECT_GT(index, 20U);
}

TEST_P(StoreSafety, eachCallFails) {
    std::vector<SyscallStop> calls;
    runAndLook([&](const SyscallStop& stop) {
        calls.push_back(stop);
        return ordinarily(Machine::able, stop);
    });
    for (const SyscallStop& call : calls)
        for (const std::vector<int> errors = possibleErrors(call); const int error : errors) {
            const bool isWriting = std::ranges::find(errors, ENOSPC) != errors.end();
            if (GetParam().looksForFiles && !isWriting)
                continue;
            SCOPED_TRACE(syscallName(call.number) + " #" + std::to_string(call.index) + " " +
                         strerrorname_np(error));
            const TracedEnd end = runAndLook([&](const SyscallStop& stop) {
                // Not by its index: the calls of an allocator come and go.
                const bool isIt = stop.number == call.number && stop.occurrence == call.occurrence;
                return isIt ? SyscallDecision::fail(error) : ordinarily(Machine::able, stop);
            });
            ASSERT_TRUE(end.answer) << "it crashed";
            if (HasFailure())
                return;
        }
}

INSTANTIATE_TEST_SUITE_P(Quillon, StoreSafety, ::testing::ValuesIn(storeCases),
                         [](const auto& test) { return test.param.name; });

} // namespace
} // namespace quillon::testing

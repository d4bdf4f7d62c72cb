#include "store/StateFile.h"

#include "support/Generators.h"
#include "support/PrintQt.h"
#include "support/StoreBench.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <random>
#include <ranges>
#include <thread>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;

RC_GTEST_PROP(State, comesBackFromItsBytes,
              (const std::vector<WatchedFolder>& folders, const std::vector<LogEntry>& logs,
               bool isPaused, const QString& key)) {
    PersistedState state;
    state.folders = folders;
    state.logs = logs;
    state.isPaused = isPaused;
    state.processedFiles[u"F3A6C1D8-7B20-45E9-AD34-90C2B1E8F7A5"_s] = {key, u"other"_s};
    state.other.insert(u"ofANewerVersion"_s, 1);
    const auto decoded = decodeState(encodeState(state), {});
    RC_ASSERT(decoded.has_value());
    RC_ASSERT(*decoded == state);
}

TEST(State, saysWhatIsWrong) {
    const struct {
        const char* text;
        const char* error; ///< nullptr: it can be decoded
    } cases[] = {
        {R"({"folders":[],"logs":[]})", nullptr},
        {R"({"folders":[],"logs":[],"processedFiles":null,"isPaused":null})", nullptr},
        {R"({"folders":[]})", "logs is missing"},
        {R"({"logs":[]})", "folders is missing"},
        {R"({"folders":[{}],"logs":[]})", "folders[0].path is missing"},
        {R"({"folders":[],"logs":[],"isPaused":1})",
         "isPaused: expected true or false, found a number"},
        {R"({"folders":[],"logs":[],"processedFiles":{"A":[1]}})",
         "processedFiles.A[0]: expected text, found a number"},
        {R"([])", "expected an object, found a list"},
        {"", "the text is empty"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const auto state = decodeState(c.text, {});
        EXPECT_EQ(state.has_value(), c.error == nullptr);
        if (!state && c.error) {
            EXPECT_EQ(state.error().message, QString::fromUtf8(c.error));
        }
    }
}

TEST(State, keepsTheNewest500Entries) {
    PersistedState state;
    state.logs.resize(logCap);
    const LogEntry lastKept = state.logs[logCap - 4];
    const std::vector<LogEntry> run(3);
    state.addLogs(run);
    ASSERT_EQ(state.logs.size(), logCap);
    EXPECT_TRUE(std::ranges::equal(run, state.logs | std::views::take(3)));
    EXPECT_EQ(state.logs.back(), lastKept);
}

TEST(StateFile, keepsAsideWhatItCannotUse) {
    const struct {
        const char* name;
        void (*make)(const std::string& path);
    } cases[] = {
        {"cut short", [](const std::string& path) { std::ofstream(path) << R"({"folders":[)"; }},
        {"empty", [](const std::string& path) { std::ofstream(path) << ""; }},
        {"a folder", [](const std::string& path) { fs::create_directory(path); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        StoreBench bench;
        c.make(bench.places.state());
        // A command that only reads leaves it where it is.
        EXPECT_FALSE(viewStore(bench.places, bench.services));
        EXPECT_TRUE(fs::exists(bench.places.state()));

        auto session = bench.open();
        ASSERT_TRUE(session);
        EXPECT_EQ(session->state(), PersistedState{});
        ASSERT_EQ(session->warnings().size(), 1);
        const auto kept =
            QRegularExpression(u"/store\\.json\\.unreadable-\\d{4}-\\d\\d-\\d\\d-\\d{6}"_s)
                .match(session->warnings()[0])
                .captured();
        EXPECT_TRUE(fs::exists(bench.places.folder + kept.toStdString()))
            << session->warnings()[0].toStdString();
        EXPECT_FALSE(fs::exists(bench.places.state()));
        ASSERT_TRUE(session->save());
        EXPECT_TRUE(viewStore(bench.places, bench.services));
    }
}

/// One file in memory, and where it was kept aside.
class OneFile : public LinuxStorage {
public:
    QByteArray bytes;
    std::optional<QByteArray> kept;

    Expected<QByteArray> readWhole(const std::string&, std::uint64_t) const override {
        return bytes;
    }
    Expected<std::string> keepAside(const std::string&, const std::string& wanted) override {
        kept = bytes;
        return wanted;
    }
};

TEST(StateFile, losesNothingThatItCannotDecode) {
    PersistedState state;
    state.folders.resize(2);
    state.folders[0].path = u"/home/anna/Dönerladen"_s;
    state.folders[0].rules.resize(2);
    state.logs.resize(3);
    state.processedFiles[u"F3A6C1D8-7B20-45E9-AD34-90C2B1E8F7A5"_s] = {u"key"_s};
    const QByteArray whole = encodeState(state);
    const auto isKeptOrDecoded = [](const QByteArray& bytes) {
        OneFile storage;
        storage.bytes = bytes;
        const auto loaded = StateFile(storage, "/store.json").load({});
        return loaded && loaded->warning.has_value() == storage.kept.has_value() &&
               (!storage.kept || (*storage.kept == bytes && loaded->state == PersistedState{}));
    };
    for (qsizetype length = 0; length < whole.size(); ++length) {
        ASSERT_TRUE(isKeptOrDecoded(whole.first(length))) << length;
        ASSERT_FALSE(decodeState(whole.first(length), {})) << length;
    }
    std::minstd_rand random(1);
    for (int flip = 0; flip < 10'000; ++flip) {
        QByteArray bytes = whole;
        const auto bit = static_cast<qsizetype>(random()) % (bytes.size() * 8);
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << (bit % 8)));
        ASSERT_TRUE(isKeptOrDecoded(bytes)) << bit;
    }
}

TEST(StateFile, isNotWrittenAgainWhenNothingHasChanged) {
    StoreBench bench;
    const auto session = bench.open();
    const auto inode = [&] {
        return bench.machine.platform.fileSystem.status(bench.places.state())->inode;
    };
    ASSERT_TRUE(session->save());
    const auto first = inode();
    ASSERT_TRUE(session->save());
    EXPECT_EQ(inode(), first);
    fs::remove(bench.places.state());
    ASSERT_TRUE(session->save());
    session->state().isPaused = true;
    ASSERT_TRUE(session->save());
    EXPECT_TRUE(viewStore(bench.places, bench.services)->state.isPaused);
}

TEST(StoreSession, rewritesAtLaunchWhatTheNextSaveCompletes) {
    StoreBench bench;
    const auto saved = [&] { return *StateFile(bench.storage, bench.places.state()).read({}); };
    {
        auto session = bench.open();
        session->state().folders.resize(1);
        session->state().logs.resize(2);
        session->state().isPaused = true;
        ASSERT_TRUE(session->save());
    }
    const PersistedState before = saved();
    auto session = bench.open();
    ASSERT_TRUE(session->rewriteAtLaunch());
    EXPECT_EQ(saved(), before.foldersOnly());
    EXPECT_EQ(*StateFile(bench.storage, bench.places.previous()).read({}), before);
    EXPECT_EQ(viewStore(bench.places, bench.services)->state, before);
    EXPECT_EQ(session->state(), before);
    ASSERT_TRUE(session->save());
    EXPECT_EQ(saved(), before);

    // What can't be read of the one before is kept and said.
    ASSERT_TRUE(session->rewriteAtLaunch());
    session.reset();
    std::ofstream(bench.places.previous()) << "{";
    session = bench.open();
    EXPECT_EQ(session->state(), before.foldersOnly());
    ASSERT_EQ(session->warnings().size(), 1);
    EXPECT_TRUE(session->warnings()[0].contains(u"store.json.previous.unreadable-"_s));
}

TEST(StoreSession, hasOneWriterHoweverManyStart) {
    StoreBench bench;
    for (int time = 0; time < 100; ++time) {
        std::atomic<int> opened = 0;
        std::barrier together(2);
        const auto start = [&] {
            LinuxStorage storage;
            const StoreSession::Services own{.storage = storage,
                                             .fileSystem = bench.services.fileSystem,
                                             .clock = bench.clock,
                                             .pause = [](std::chrono::milliseconds) {},
                                             .trashPlaces = bench.services.trashPlaces,
                                             .temporaryTag = "ours"};
            together.arrive_and_wait();
            const auto session = StoreSession::open(bench.places, own);
            opened += session.has_value() ? 1 : 0;
            together.arrive_and_wait();
        };
        std::thread other(start);
        start();
        other.join();
        ASSERT_EQ(opened, 1);
    }
}

TEST(StoreSession, hasOneWriter) {
    StoreBench bench;
    auto first = bench.open();
    const auto second = StoreSession::open(bench.places, bench.services);
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error().kind, ErrorKind::timedOut);
    EXPECT_EQ(bench.waited, lockPatience);
    EXPECT_TRUE(viewStore(bench.places, bench.services));

    // Somebody who is nearly done is waited for.
    bench.services.pause = [&](std::chrono::milliseconds) { first.reset(); };
    EXPECT_TRUE(StoreSession::open(bench.places, bench.services));
}

} // namespace
} // namespace quillon::testing

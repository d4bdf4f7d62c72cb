#include "store/StateFile.h"

#include "support/Generators.h"
#include "support/PrintQt.h"
#include "support/StoreBench.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <ranges>

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

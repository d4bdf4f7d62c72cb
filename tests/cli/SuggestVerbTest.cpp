#include "support/CommandBench.h"
#include "support/ModelServer.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(SuggestVerb, addsAndDismissesWhatWasShown) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    ModelServer server; // without a model, at first
    const CommandBench bench;
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "x.txt", "y.txt", "z.txt"})
        bench.write(std::string("in/") + name, "contents");
    const struct {
        std::vector<std::string> words;
        ExitCode code;
        const char* said; ///< on either stream
    } steps[] = {
        {{"settings", "set", "ai.localHost", server.host().toStdString()}, ExitCode::done, ""},
        {{"suggest", "@in", "--dismiss", "1"}, ExitCode::usage, "Look at what is suggested first"},
        {{"suggest", "@nowhere"}, ExitCode::unreadable, "nowhere can't be read: No such file"},
        {{"suggest", "@in"}, ExitCode::done, "  File JPG files: 3 JPG files, all from "},
        {{"suggest", "@in"}, ExitCode::done, "watch the folder first: quillon folder add"},
        {{"suggest", "@in", "--add", "1"}, ExitCode::usage, "is not watched"},
        {{"folder", "add", "@in"}, ExitCode::done, ""},
        {{"suggest", "@in", "--add", "3"}, ExitCode::usage, "no suggestion “3” among those"},
        {{"suggest", "@in", "--add", "0"}, ExitCode::usage, "no suggestion “0”"},
        {{"suggest", "@in", "--add", "1", "--dismiss", "2"}, ExitCode::usage, "excludes"},
        {{"suggest", "@in", "--add", "1"}, ExitCode::done, "in: tidied 3 files"},
        // The numbers are still those of the list that was shown.
        {{"suggest", "@in", "--add", "1"}, ExitCode::someFailed, "doesn't suit in any more"},
        {{"suggest", "@in", "--dismiss", "2"}, ExitCode::done, "“File TXT files” is not suggested"},
        {{"suggest", "@in"}, ExitCode::done, "Nothing to suggest for in: no three files"},
        {{"suggest", "@in", "--dismiss", "2"}, ExitCode::usage, "Look at what"},
        {{"settings", "set", "ai.suggestRules", "off"}, ExitCode::done, ""},
        {{"suggest", "@in"}, ExitCode::someFailed, "Suggestions are switched off"},
        {{"settings", "set", "ai.suggestRules", "on"}, ExitCode::done, ""},
    };
    for (const auto& [words, code, said] : steps) {
        const auto result = bench.run(words);
        SCOPED_TRACE(said);
        EXPECT_EQ(result.code, code) << result.out << result.err;
        EXPECT_THAT(result.out + result.err, HasSubstr(said));
    }
    EXPECT_TRUE(bench.files().contains("in/JPG/a.jpg"));
    EXPECT_TRUE(bench.files().contains("in/x.txt"));

    // A rule is added under the name that was shown, though the model is asked no more.
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3", "d.wav", "e.wav", "f.wav"})
        bench.write(std::string("in/") + name, "contents");
    server.haveModels({u"llama3.2:3b"_s});
    server.play("/api/chat", ModelServer::chatAnswer(
                                 uR"({"folders":[{"groups":["g1","g2"],"folder":"Songs"}]})"_s));
    const auto shown = QJsonDocument::fromJson(
        QByteArray::fromStdString(bench.run({"suggest", "@in", "--json"}).out));
    EXPECT_TRUE(shown["isWatched"_L1].toBool());
    ASSERT_EQ(shown["suggestions"_L1].toArray().size(), 1);
    EXPECT_EQ(shown["suggestions"_L1][0]["name"_L1], u"File Songs"_s);
    EXPECT_EQ(shown["suggestions"_L1][0]["count"_L1], 6);
    // An hour ago was yesterday for an hour of the day.
    EXPECT_TRUE(shown["suggestions"_L1][0]["reason"_L1].toString().startsWith(
        u"6 MP3 and WAV files, all from "_s));
    server.play("/api/chat", ModelServer::Answer{.status = 500});
    const std::string id = shown["suggestions"_L1][0]["id"_L1].toString().toStdString();
    EXPECT_EQ(bench.run({"suggest", "@in", "--add", "1"}).code, ExitCode::usage);
    EXPECT_THAT(bench.run({"suggest", "@in", "--add", id}).out,
                HasSubstr("Added “File Songs” to in"));
    EXPECT_TRUE(bench.files().contains("in/Songs/f.wav"));
}

TEST(SuggestVerb, keepsThePersonsNumbersWhenAProgramLooks) {
    const CommandBench bench;
    bench.run({"folder", "add", "@in"});
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
        bench.write(std::string("in/") + name, "contents");
    bench.run({"suggest", "@in"});
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3", "d.mp3"})
        bench.write(std::string("in/") + name, "contents");
    const auto read = bench.json({"suggest", "@in"});
    EXPECT_EQ(read["suggestions"_L1][0]["name"_L1], u"File MP3 files"_s);
    EXPECT_THAT(bench.run({"suggest", "@in", "--add", "1"}).out, HasSubstr("Added “File JPG"));
    const std::string id = read["suggestions"_L1][0]["id"_L1].toString().toStdString();
    EXPECT_THAT(bench.run({"suggest", "@in"}).out, HasSubstr("1  " + id + "  File MP3 files"));
    EXPECT_THAT(bench.run({"suggest", "@in", "--dismiss", id}).out, HasSubstr("“File MP3 files”"));
}

TEST(SuggestVerb, addsWhatUndoCannotReachOnlyWhenAgreed) {
    const CommandBench bench;
    bench.run({"folder", "add", "@in"});
    for (int i = 0; i <= 500; ++i)
        bench.write("in/" + std::to_string(i) + ".jpg", "contents");
    EXPECT_THAT(bench.run({"suggest", "@in"}).out, HasSubstr("More than the 500 that undo"));
    const auto refused = bench.run({"suggest", "@in", "--add", "1"});
    EXPECT_EQ(refused.code, ExitCode::someFailed);
    EXPECT_THAT(refused.err, HasSubstr("would take 501 files now"));
    EXPECT_TRUE(bench.files().contains("in/0.jpg"));
    EXPECT_THAT(bench.run({"suggest", "@in", "--add", "1", "--anyway"}).out, HasSubstr("Added"));
}

TEST(SuggestVerb, saysOnceThatItCannotRemember) {
    const CommandBench bench;
    bench.run({"folder", "add", "@in"});
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
        bench.write(std::string("in/") + name, "contents");
    bench.write("data/Quillon/suggestions.json", "{");
    const auto refused = bench.run({"suggest", "@in", "--add", "1"});
    EXPECT_EQ(std::ranges::count(refused.err, '\n'), 1) << refused.err;
    const auto kept = bench.run({"suggest", "@in"});
    EXPECT_EQ(std::ranges::count(kept.err, '\n'), 1) << kept.err;
    EXPECT_THAT(kept.err, HasSubstr("suggestions.json.unreadable-"));
    EXPECT_THAT(kept.out, HasSubstr("--add ID"));

    std::filesystem::remove(bench.at("data/Quillon/suggestions.lock"));
    std::filesystem::create_directories(bench.at("data/Quillon/suggestions.lock"));
    const auto forgotten = bench.run({"suggest", "@in"});
    EXPECT_THAT(forgotten.err, HasSubstr("none of it can be added"));
    EXPECT_THAT(forgotten.out, Not(HasSubstr("--add")));
}

} // namespace
} // namespace quillon::testing

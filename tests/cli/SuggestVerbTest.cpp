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
        {{"suggest", "@in", "--dismiss", "1"}, ExitCode::usage, "look at it first"},
        {{"suggest", "@nowhere"}, ExitCode::unreadable, "nowhere can't be read: No such file"},
        {{"suggest", "@in"}, ExitCode::done, "1  File JPG files: 3 JPG files, all from today."},
        {{"suggest", "@in"}, ExitCode::done, "watch the folder first: quillon folder add"},
        {{"suggest", "@in", "--add", "1"}, ExitCode::usage, "is not watched"},
        {{"folder", "add", "@in"}, ExitCode::done, ""},
        {{"suggest", "@in", "--add", "3"}, ExitCode::usage, "no number 3 among the 2 suggestions"},
        {{"suggest", "@in", "--add", "0"}, ExitCode::usage, "“0” is not the number"},
        {{"suggest", "@in", "--add", "1", "--dismiss", "2"}, ExitCode::usage, "excludes"},
        {{"suggest", "@in", "--add", "1"}, ExitCode::done, "in: tidied 3 files"},
        // The numbers are still those of the list that was shown.
        {{"suggest", "@in", "--add", "1"},
         ExitCode::someFailed,
         "has nothing to do in in any more"},
        {{"suggest", "@in", "--dismiss", "2"}, ExitCode::done, "“File TXT files” is not suggested"},
        {{"suggest", "@in"}, ExitCode::done, "Nothing to suggest for in: no three files"},
        {{"suggest", "@in", "--dismiss", "2"}, ExitCode::usage, "look at it first"},
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
    EXPECT_EQ(shown["suggestions"_L1][0]["reason"_L1], u"6 MP3 and WAV files, all from today."_s);
    server.play("/api/chat", ModelServer::Answer{.status = 500});
    EXPECT_THAT(bench.run({"suggest", "@in", "--add", "1"}).out,
                HasSubstr("Added “File Songs” to in"));
    EXPECT_TRUE(bench.files().contains("in/Songs/f.wav"));
}

} // namespace
} // namespace quillon::testing

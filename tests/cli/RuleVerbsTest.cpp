#include "support/CommandBench.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::HasSubstr;

/// One command of a session.
struct Step {
    std::vector<std::string> arguments;
    ExitCode code;
    const char* said; ///< on either stream
};

void play(const CommandBench& bench, const std::vector<Step>& steps) {
    for (const Step& step : steps) {
        SCOPED_TRACE(CommandBench::lineOf(step.arguments));
        const CommandBench::Result result = bench.run(step.arguments);
        EXPECT_EQ(result.code, step.code) << result.out << result.err;
        EXPECT_THAT(result.out + result.err, HasSubstr(step.said));
    }
}

QJsonArray listed(const CommandBench& bench, const std::vector<std::string>& arguments) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(bench.run(arguments).out)).array();
}

TEST(FolderVerbs, addChangeListAndRemove) {
    CommandBench bench;
    bench.write("in/a.pdf", "a");
    play(bench,
         {{{"folder", "add", "@in", "@none"}, ExitCode::unreadable, "/none can't be watched"},
          {{"folder", "add", "@in/a.pdf"}, ExitCode::unreadable, "a.pdf can't be watched"},
          {{"folder", "list"}, ExitCode::done, "No folder is watched yet"},
          {{"folder", "add", "@in/", "--timing", "evry15"},
           ExitCode::usage,
           "“evry15” is not a timing; the nearest is “every15”"},
          {{"folder", "add", "@in/", "--timing", "hourly", "--color", "3", "--only-new", "on"},
           ExitCode::done,
           "Watching "},
          {{"folder", "add", "@in"}, ExitCode::someFailed, "is watched already"},
          {{"folder", "set", "@in"}, ExitCode::usage, "Nothing is to be changed"},
          {{"folder", "set", "@in", "--color", "8"}, ExitCode::usage, "0 to 7"},
          {{"folder", "set", "@im", "--color", "1"}, ExitCode::unreadable, "/in"},
          {{"folder", "set", "@in", "--recursive", "on", "--color", "none", "--symbol", "tray"},
           ExitCode::done,
           "is changed"}});
    const QJsonObject folder = listed(bench, {"folder", "list", "--json"}).at(0).toObject();
    EXPECT_EQ(folder["timing"_L1], "hourly"_L1);
    EXPECT_EQ(folder["isRecursive"_L1], true);
    EXPECT_EQ(folder["onlyNewFiles"_L1], true);
    EXPECT_EQ(folder["symbolName"_L1], "tray"_L1);
    EXPECT_EQ(folder["access"_L1], "ok"_L1);
    EXPECT_FALSE(folder.contains("colorIndex"_L1));
    play(bench, {{{"folder", "remove", "@in"}, ExitCode::done, "not watched any more"},
                 {{"folder", "list", "--json"}, ExitCode::done, "[]"}});
    EXPECT_TRUE(std::filesystem::exists(bench.at("in/a.pdf")));
}

TEST(RuleVerbs, addInWordsTidiesAtOnce) {
    CommandBench bench;
    bench.write("in/a.pdf", "a");
    bench.write("in/b.txt", "b");
    const std::string pdfs = "move to " + bench.at("PDFs");
    play(bench,
         {{{"folder", "add", "@in"}, ExitCode::done, "Watching"},
          {{"rule", "add", "--folder", "@in", "--if", "extention is pdf", "--then", pdfs},
           ExitCode::usage,
           "the nearest is “extension”"},
          {{"rule", "add", "--folder", "@in", "--if", "extension is pdf"},
           ExitCode::usage,
           "Give one of --then"},
          {{"rule", "add", "--folder", "@in", "--then", "trash"}, ExitCode::usage, "needs --if"},
          {{"rule", "add", "--folder", "@other", "--file", "@none.json"},
           ExitCode::unreadable,
           "none.json can't be read"},
          {{"rule", "add", "--folder", "@in", "--name", "File PDFs", "--if", "extension is pdf",
            "--if", "larger than 1 GB", "--any", "--then", pdfs},
           ExitCode::done,
           "If extension is “pdf” or larger than 1 GB → Move to PDFs"},
          {{"rule", "add", "--folder", "@in", "--if", "name contains ''", "--then", "tag red"},
           ExitCode::done,
           "warning: A “Name” condition has no value."}});
    EXPECT_TRUE(std::filesystem::exists(bench.at("PDFs/a.pdf")));
    EXPECT_TRUE(std::filesystem::exists(bench.at("in/b.txt")));
}

TEST(RuleVerbs, arrangeCopyAndExchange) {
    CommandBench bench;
    std::filesystem::create_directories(bench.at("other"));
    const auto add = [](const char* name) {
        return Step{{"rule", "add", "--folder", "@in", "--name", name, "--if", "name is zzz",
                     "--then", "tag blue"},
                    ExitCode::done,
                    name};
    };
    play(bench,
         {{{"folder", "add", "@in", "@other"}, ExitCode::done, "Watching"},
          add("One"),
          add("Two"),
          {{"preset", "add", "sort by knid", "--folder", "@in"},
           ExitCode::usage,
           "the nearest is “Sort by kind”"},
          {{"preset", "add", "unpack archives", "--folder", "@in"},
           ExitCode::done,
           "Added “Unpack archives”"},
          {{"rule", "disable", "tow", "--folder", "@in"}, ExitCode::usage, "nearest is “Two”"},
          {{"rule", "disable", "TWO", "--folder", "@in"}, ExitCode::done, "“Two” is off"},
          {{"rule", "move", "3", "--folder", "@in", "--to", "1"}, ExitCode::done, "number 1 of 3"},
          {{"rule", "move", "One", "--folder", "@in", "--by", "1"}, ExitCode::done, "number 3 of"},
          {{"rule", "move", "One", "--folder", "@in", "--before", "Two"},
           ExitCode::done,
           "number 2 of 3"},
          {{"rule", "move", "One", "--folder", "@in", "--to", "9"}, ExitCode::usage, "1 to 3"},
          {{"rule", "duplicate", "Two", "--folder", "@in"}, ExitCode::done, "below"},
          {{"rule", "copy", "One", "--folder", "@in", "--to", "@other"},
           ExitCode::done,
           "copied to other"},
          {{"rule", "remove", "9", "--folder", "@in"}, ExitCode::usage, "has 4 rules"},
          {{"rule", "remove", "Two copy", "--folder", "@in"}, ExitCode::done, "is removed"},
          {{"rule", "export", "@rules.json", "--folder", "@in"}, ExitCode::done, "3 rules"},
          {{"rule", "export", "@rules.json", "--folder", "@in"},
           ExitCode::someFailed,
           "is there already"},
          {{"rule", "import", "@rules.json", "--folder", "@other"}, ExitCode::done, "Added “Two”"},
          {{"rule", "import", "@none.json", "--folder", "@other"},
           ExitCode::unreadable,
           "No such file"},
          {{"rule", "list", "--folder", "@in"}, ExitCode::done, "3  Two (off)"}});
    QStringList names;
    QSet<QString> ids;
    for (const char* folder : {"@in", "@other"})
        for (const QJsonValue& rule :
             listed(bench, {"rule", "list", "--folder", folder, "--json"})) {
            names.append(rule["name"_L1].toString());
            ids.insert(rule["id"_L1].toString());
        }
    EXPECT_EQ(names.join(u','), u"Unpack archives,One,Two,One,Unpack archives,One,Two"_s);
    EXPECT_EQ(ids.size(), names.size());
}

TEST(RuleVerbs, catalogues) {
    CommandBench bench;
    std::filesystem::create_directories(bench.at("Desktop"));
    EXPECT_EQ(listed(bench, {"preset", "list", "--json"}).size(), 6);
    const QJsonArray plain = listed(bench, {"recipe", "list", "--json"});
    const QJsonArray desktop = listed(bench, {"recipe", "list", "--folder", "@Desktop", "--json"});
    EXPECT_EQ(plain.at(0)["id"_L1], "old-installers"_L1);
    EXPECT_EQ(desktop.at(0)["id"_L1], "screenshots"_L1);
    EXPECT_EQ(plain.size(), desktop.size());
}

} // namespace
} // namespace quillon::testing

#include "support/CommandBench.h"

#include <QProcess>
#include <gmock/gmock.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

/// What a program prints, standard error included.
std::string printed(const QString& program, const QStringList& arguments,
                    const std::string& input = {}) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.write(QByteArray::fromStdString(input));
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitCode() != 0)
        ADD_FAILURE() << program.toStdString() << " failed: " << process.readAll().toStdString();
    return process.readAll().toStdString();
}

TEST(Completion, bashOffersWhatMayStandThere) {
    CommandBench bench;
    std::filesystem::create_directories(bench.at("in/My Files"));
    bench.write("in/rules.json", "[]");
    bench.write("script", bench.run({"completions", "bash"}).out);
    const struct {
        std::vector<std::string> words; ///< the last one is completed
        std::string offered;
    } cases[] = {
        {{"quillon", "fold"}, "folder"},
        {{"quillon", "folder", "re"}, "remove"},
        {{"quillon", "folder", "add", "--ti"}, "--timing"},
        {{"quillon", "folder", "add", "--timing", "every"}, "every15,every6h"},
        {{"quillon", "folder", "add", "--timing", "=", "man"}, "manual"},
        {{"quillon", "folder", "add", bench.at("in/")}, bench.at("in/My Files")},
        {{"quillon", "rule", "import", bench.at("in/r")}, bench.at("in/rules.json")},
        {{"quillon", "rule", "list", "--folder", bench.at("in/")}, bench.at("in/My Files")},
        {{"quillon", "completions", "z"}, "zsh"},
        {{"quillon", "pause", "x"}, ""},
    };
    for (const auto& [words, offered] : cases) {
        QStringList arguments{
            u"-c"_s,
            u"source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _quillon; "
            "IFS=,; printf %s \"${COMPREPLY[*]}\""_s,
            u"bash"_s, QString::fromStdString(bench.at("script"))};
        for (const std::string& word : words)
            arguments.append(QString::fromStdString(word));
        EXPECT_EQ(printed(u"bash"_s, arguments), offered) << words.back();
    }
}

TEST(Completion, zshUnderstandsItsScript) {
    CommandBench bench;
    bench.write("script", bench.run({"completions", "zsh"}).out);
    const QString script = QString::fromStdString(bench.at("script"));
    EXPECT_EQ(printed(u"zsh"_s, {u"-f"_s, u"-n"_s, script}), "");
    // Completion itself needs a line editor; what it is told can be looked at without.
    const std::string told =
        printed(u"zsh"_s, {u"-f"_s, u"-c"_s,
                           u"compdef() { }; _arguments() { print -rl -- \"$@\" }; source $1; "
                           "words=(quillon rule add ''); CURRENT=4; _quillon"_s,
                           u"zsh"_s, script});
    EXPECT_THAT(told, ::testing::HasSubstr("--folder[The watched folder]:folder:_files -/"));
    EXPECT_THAT(told, ::testing::HasSubstr("*--then["));
}

TEST(Manual, everyPageIsSetWithoutWarning) {
    CommandBench bench;
    std::istringstream names(bench.run({"manual", "--list"}).out);
    std::size_t pages = 0;
    for (std::string name; std::getline(names, name); ++pages) {
        const std::string verb = name.substr(std::min(name.size(), std::size_t(8)));
        const std::string page = bench
                                     .run(verb.empty() ? std::vector<std::string>{"manual"}
                                                       : std::vector<std::string>{"manual", verb})
                                     .out;
        EXPECT_THAT(page, ::testing::StartsWith(".TH "));
        EXPECT_EQ(printed(u"groff"_s, {u"-man"_s, u"-Tutf8"_s, u"-ww"_s, u"-z"_s}, page), "")
            << name;
    }
    EXPECT_GT(pages, 10);
    EXPECT_THAT(
        printed(u"groff"_s, {u"-man"_s, u"-Tutf8"_s, u"-P-cbou"_s},
                bench.run({"manual", "rule"}).out),
        ::testing::HasSubstr("--if \"extension is pdf\" --then \"move to ~/Documents/PDFs\""));
}

} // namespace
} // namespace quillon::testing

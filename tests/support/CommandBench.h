#pragma once

#include "cli/CommandLine.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace quillon::testing {

/// Runs the command in process, with a home of its own.
class CommandBench {
public:
    struct Result {
        ExitCode code;
        std::string out;
        std::string err;
    };

    CommandBench() { std::filesystem::create_directories(at("in")); }

    [[nodiscard]] std::string at(const std::string& name) const {
        return home_.path().toStdString() + "/" + name;
    }

    /// Makes a file, and the folders that lead to it, old enough to be tidied.
    std::string write(const std::string& name, const std::string& contents) const {
        std::filesystem::create_directories(std::filesystem::path(at(name)).parent_path());
        std::ofstream(at(name), std::ios::binary) << contents;
        std::filesystem::last_write_time(at(name), std::filesystem::file_time_type::clock::now() -
                                                       std::chrono::hours(1));
        return at(name);
    }

    /// "@" at the beginning of an argument stands for the home folder and a slash.
    Result run(std::vector<std::string> arguments, const std::string& input = {},
               bool isTerminal = false) const {
        for (std::string& argument : arguments)
            if (argument.starts_with('@'))
                argument = at(argument.substr(1));
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const Console console{
            .in = in, .out = out, .err = err, .colored = isTerminal, .showsProgress = isTerminal};
        const UserFolders folders{.home = at(""),
                                  .data = at("data/Quillon"),
                                  .runtime = at("run"),
                                  .config = at("config/Quillon")};
        const ExitCode code = runCommandLine(arguments, console, [&] { return folders; });
        return {code, out.str(), err.str()};
    }

    /// What a verb answers with --json.
    [[nodiscard]] QJsonDocument json(std::vector<std::string> arguments) const {
        arguments.emplace_back("--json");
        const Result result = run(arguments);
        const auto document = QJsonDocument::fromJson(QByteArray::fromStdString(result.out));
        EXPECT_FALSE(document.isNull()) << result.out << result.err;
        return document;
    }

    /// The arguments of the undo that some output ends with.
    [[nodiscard]] static std::vector<std::string> undoIn(const std::string& output) {
        const std::string before = "Undo with: quillon ";
        const std::size_t start = output.rfind(before);
        if (start == std::string::npos) {
            ADD_FAILURE() << output;
            return {};
        }
        std::istringstream words(output.substr(start + before.size()));
        return {std::istream_iterator<std::string>(words), {}};
    }

    /// As it is typed.
    [[nodiscard]] static std::string lineOf(const std::vector<std::string>& arguments) {
        std::string line = "quillon";
        for (const std::string& argument : arguments)
            line += ' ' + argument;
        return line;
    }

    /// Every file in the home folder and what it holds.
    [[nodiscard]] std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> found;
        const std::filesystem::path root = at("");
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            std::ostringstream text;
            if (entry.is_regular_file())
                text << std::ifstream(entry.path()).rdbuf();
            found[std::filesystem::relative(entry.path(), root)] = text.str();
        }
        return found;
    }

private:
    QTemporaryDir home_;
};

} // namespace quillon::testing

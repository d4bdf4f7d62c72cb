#pragma once

#include "cli/CommandLine.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
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

#include "cli/CommandLine.h"

#include "cli/NearestWord.h"
#include "cli/VerbTable.h"

#include <sstream>

namespace quillon {
namespace {

constexpr const char* exitCodes =
    R"(Exit codes: 0 done, 1 some file failed, 2 wrong usage, 3 input can't be read,
4 another Quillon is at work and can't be reached.)";

std::vector<std::string> verbNames() {
    std::vector<std::string> names;
    for (const Verb& verb : verbTable())
        names.emplace_back(verb.name);
    return names;
}

Answer wrong(const std::string& what, const CLI::App& app) {
    const auto verbs = app.get_subcommands();
    const std::string help =
        verbs.empty() ? "quillon --help" : "quillon " + verbs[0]->get_name() + " --help";
    return {"quillon: " + what + "\nSee: " + help + "\n", ExitCode::usage};
}

Answer unknownVerb(const std::string& word, const CLI::App& app) {
    return wrong("“" + word + "” is not a command; the nearest is “" +
                     nearestWord(word, verbNames()) + "”",
                 app);
}

Answer unexpected(const CLI::App& app) {
    const std::string word = app.remaining(true).front();
    const auto verbs = app.get_subcommands();
    if (!word.starts_with('-'))
        return wrong("“" + word + "” is one argument too many", app);
    std::vector<std::string> names;
    for (const CLI::Option* option : (verbs.empty() ? &app : verbs[0])->get_options())
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    return wrong("“" + word + "” is not an option; the nearest is “" +
                     nearestWord(word.substr(0, word.find('=')), names) + "”",
                 app);
}

Answer answerTo(const CLI::ParseError& error, const CLI::App& app) {
    if (error.get_exit_code() == 0) {
        std::ostringstream text;
        app.exit(error, text, text);
        return {text.str(), ExitCode::done};
    }
    // An option that is not known explains why a required one seems to be missing.
    if (!app.remaining(true).empty())
        return unexpected(app);
    const std::string what = error.what();
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ArgumentMismatch))
        return wrong(what.substr(0, what.find(':')) + " takes one value and is given once", app);
    return wrong(what, app);
}

} // namespace

std::variant<Command, Answer> parseCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app(
        "Quillon keeps folders tidy: it files, renames and tags what lands in them, by rules.",
        "quillon");
    app.set_help_flag("-h,--help", "Show this help");
    app.set_version_flag("--version", "quillon " QUILLON_VERSION)->description("Show the version");
    app.get_formatter()->column_width(34);
    app.get_formatter()->label("REQUIRED", "");
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.get_formatter()->label("Subcommands", "Commands");
    app.get_formatter()->label("Positionals", "Arguments");
    app.footer(std::string("quillon COMMAND --help shows an example of each.\n") + exitCodes);

    std::vector<std::pair<CLI::App*, Command>> commands;
    for (const Verb& verb : verbTable()) {
        CLI::App* const sub = app.add_subcommand(verb.name, verb.description);
        sub->footer(std::string("Example:\n") + verb.example);
        commands.emplace_back(sub, verb.define(*sub));
    }
    if (arguments.empty())
        return Answer{app.help(), ExitCode::usage};
    if (!arguments[0].starts_with('-') && !std::ranges::count(verbNames(), arguments[0]))
        return unknownVerb(arguments[0], app);
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        return answerTo(error, app);
    }
    for (const auto& [sub, command] : commands)
        if (sub->parsed())
            return command;
    return Answer{app.help(), ExitCode::usage};
}

ExitCode runCommandLine(const std::vector<std::string>& arguments, const Console& console,
                        const std::function<UserFolders()>& folders) {
    const auto parsed = parseCommandLine(arguments);
    ExitCode code = ExitCode::done;
    if (const auto* answer = std::get_if<Answer>(&parsed)) {
        (answer->code == ExitCode::done ? console.out : console.err) << answer->text;
        code = answer->code;
    } else {
        Services services(folders());
        code = std::get<Command>(parsed)(console, services);
    }
    console.out.flush();
    console.err.flush();
    if (console.out || code != ExitCode::done)
        return code;
    console.say(QStringLiteral("The result could not be written to standard output"));
    return ExitCode::someFailed;
}

} // namespace quillon

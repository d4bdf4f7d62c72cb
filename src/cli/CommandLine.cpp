#include "cli/CommandLine.h"

#include "cli/SyntaxParts.h"
#include "cli/VerbTable.h"
#include "model/NearestWord.h"
#include "service/CommandClient.h"
#include "service/CommandThread.h"

#include <optional>
#include <span>
#include <sstream>

namespace quillon {
namespace {

constexpr const char* exitCodes =
    R"(Exit codes: 0 done, 1 some file failed, 2 wrong usage, 3 input can't be read,
4 another Quillon is at work and can't be reached.)";

/// `command` is the part of the command line whose help to point at: "quillon folder add".
Answer wrong(const std::string& what, const std::string& command) {
    return {"quillon: " + what + "\nSee: " + command + " --help\n", ExitCode::usage};
}

Answer unknownVerb(const std::string& word, const std::string& noun) {
    const std::string place = noun.empty() ? "a command" : "a command of quillon " + noun;
    return wrong(notAmong(word, place, wordsBelow(noun)),
                 noun.empty() ? "quillon" : "quillon " + noun);
}

Answer unexpected(const CLI::App& app) {
    const std::string word = app.remaining(true).front();
    if (!word.starts_with('-'))
        return wrong("“" + word + "” is one argument too many", app.get_name());
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options())
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    return wrong("“" + word + "” is not an option; the nearest is “" +
                     nearestWord(word.substr(0, word.find('=')), names) + "”",
                 app.get_name());
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
        return wrong(what.substr(0, what.find(':')) + " takes one value and is given once",
                     app.get_name());
    return wrong(what, app.get_name());
}

/// Nothing when the arguments are fine.
std::optional<Answer> parse(CLI::App& app, std::span<const std::string> arguments) {
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        return answerTo(error, app);
    }
    return std::nullopt;
}

Answer answerWithoutVerb(std::span<const std::string> arguments) {
    CLI::App app(
        "Quillon keeps folders tidy: it files, renames and tags what lands in them, by rules.",
        "quillon");
    styleHelp(app);
    app.set_version_flag("--version", "quillon " QUILLON_VERSION)->description("Show the version");
    app.footer(std::string("quillon COMMAND --help shows an example of each.\n") + exitCodes);
    for (const std::string& word : wordsBelow({}))
        app.add_subcommand(word, findVerb(word)->description)->group("Commands");
    return parse(app, arguments).value_or(Answer{app.help(), ExitCode::usage});
}

ExitCode give(const Answer& answer, const Console& console) {
    (answer.code == ExitCode::done ? console.out : console.err) << answer.text;
    return answer.code;
}

ExitCode carryOut(const std::vector<std::string>& arguments, const Command& command,
                  const Console& console, const UserFolders& folders) {
    if (!findVerb(arguments.front())->standsAlone)
        if (const auto code = carriedOutByInstance(arguments, console, folders))
            return *code;
    Services services(folders);
    return onCommandThread(services, [&] { return command(console, services); });
}

} // namespace

std::variant<Command, Answer> parseCommandLine(const std::vector<std::string>& arguments) {
    std::span<const std::string> rest(arguments);
    if (rest.empty() || rest[0].starts_with('-'))
        return answerWithoutVerb(rest);
    const Verb* verb = findVerb(rest[0]);
    if (verb == nullptr || verb->name.contains(' '))
        return unknownVerb(rest[0], {});
    rest = rest.subspan(1);
    if (verb->define == nullptr && !rest.empty() && !rest[0].starts_with('-')) {
        const std::string noun(verb->name);
        verb = findVerb(noun + ' ' + rest[0]);
        if (verb == nullptr)
            return unknownVerb(rest[0], noun);
        rest = rest.subspan(1);
    }

    VerbParser parser(*verb);
    if (const auto answer = parse(parser.app, rest))
        return *answer;
    if (!parser.command)
        return Answer{parser.app.help(), ExitCode::usage};
    return parser.command;
}

ExitCode carryOutCommandLine(const std::vector<std::string>& arguments, const Console& console,
                             Services& services) {
    const auto parsed = parseCommandLine(arguments);
    if (const auto* answer = std::get_if<Answer>(&parsed))
        return give(*answer, console);
    return std::get<Command>(parsed)(console, services);
}

ExitCode runCommandLine(const std::vector<std::string>& arguments, const Console& console,
                        const std::function<UserFolders()>& folders) {
    const auto parsed = parseCommandLine(arguments);
    const auto* answer = std::get_if<Answer>(&parsed);
    const ExitCode code = answer
                              ? give(*answer, console)
                              : carryOut(arguments, std::get<Command>(parsed), console, folders());
    console.out.flush();
    console.err.flush();
    if (console.out || code != ExitCode::done)
        return code;
    console.say(QStringLiteral("The result could not be written to standard output"));
    return ExitCode::someFailed;
}

} // namespace quillon

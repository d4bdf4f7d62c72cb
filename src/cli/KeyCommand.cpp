#include "assistant/backends/AIManager.h"
#include "cli/JsonOutput.h"
#include "cli/LineBuffer.h"
#include "cli/Verbs.h"
#include "service/LoopTask.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using KeyTask = std::function<QCoro::Task<Expected<void>>()>;

/// Carries a task of the assistant out, and says why it failed. Nothing when the command was called
/// off, which the one who did so knows.
std::optional<Expected<void>> done(const KeyTask& task, const Console& console,
                                   Services& services) {
    return resultOnLoop<Expected<void>>(services, task, console.mayContinue);
}

/// What is known of the key, and of who answers.
struct KeyState {
    Expected<QString> suffix; ///< empty without a key
    bool isInMemory = false;  ///< whatever the keyring says
    bool usesClaude = false;  ///< when there is a key
    ClaudeModel model = ClaudeModel::sonnet;
    int requests = 0;

    [[nodiscard]] bool isClaudeAsked() const { return usesClaude && isInMemory; }
};

KeyState keyState(const Expected<void>& loaded, Services& services) {
    KeyState state;
    services.onLoop([&] {
        const AIManager& assistant = services.assistant();
        if (loaded)
            state.suffix = assistant.keySuffix();
        else if (loaded.error().kind != ErrorKind::notFound)
            state.suffix = std::unexpected(loaded.error());
        state.isInMemory = !assistant.keySuffix().isEmpty();
        state.usesClaude = assistant.useClaude();
        state.model = assistant.claudeModel();
        state.requests = assistant.requestsThisMonth();
    });
    return state;
}

void printJson(const KeyState& state, std::ostream& out) {
    JsonStream json;
    json.beginObject();
    if (state.suffix)
        json.key("hasKey").truth(!state.suffix->isEmpty());
    if (state.suffix && !state.suffix->isEmpty())
        json.key("suffix").text(*state.suffix);
    if (!state.suffix)
        json.key("problem").text(state.suffix.error().message);
    json.key("useClaude").truth(state.usesClaude);
    json.key("backend").text(state.isClaudeAsked() ? u"claude"_s : u"local"_s);
    json.key("claudeModel").text(rawValue(state.model));
    json.key("requestsThisMonth").integer(state.requests).endObject();
    finish(json, out);
}

QString keyText(const KeyState& state) {
    if (!state.suffix)
        return u"Key: unknown"_s;
    return state.suffix->isEmpty() ? u"Key: none; save one with: quillon key set"_s
                                   : u"Key: saved, ends in “%1”"_s.arg(*state.suffix);
}

QString backendText(const KeyState& state) {
    if (state.isClaudeAsked())
        return u"Dobbin uses %1. Requests this month: %2"_s.arg(label(state.model),
                                                                QString::number(state.requests));
    if (state.suffix && !state.suffix->isEmpty())
        return u"Dobbin uses the local model; to use Claude: quillon settings set ai.useClaude "
               "true"_s;
    return u"Dobbin uses the local model; see: quillon model status"_s;
}

void printText(const KeyState& state, const Console& console) {
    LineBuffer lines(console.out, console.colored);
    lines.add(keyText(state)).endLine();
    lines.add(backendText(state)).endLine();
}

} // namespace

ExitCode keySetCommand(const Console& console, Services& services) {
    const auto key = console.secretLine("Claude API key (not shown): ");
    if (!key) {
        console.say(u"No key was given, so nothing is changed"_s);
        return ExitCode::usage;
    }
    const auto saved =
        done([&services,
              typed = QString::fromStdString(*key)] { return services.assistant().saveKey(typed); },
             console, services);
    if (!saved)
        return ExitCode::someFailed;
    if (!*saved) {
        console.say(saved->error());
        return ExitCode::someFailed;
    }
    const bool isUsed = keyState(*saved, services).isClaudeAsked();
    console.out << (isUsed ? "Key saved. Dobbin is now using Claude.\n"
                           : "Key saved. Dobbin still uses the local model; to use Claude: "
                             "quillon settings set ai.useClaude true\n");
    return ExitCode::done;
}

ExitCode keyRemoveCommand(const Console& console, Services& services) {
    const auto removed =
        done([&services] { return services.assistant().removeKey(); }, console, services);
    if (!removed)
        return ExitCode::someFailed;
    if (!*removed) {
        console.say(removed->error());
        return ExitCode::someFailed;
    }
    console.out << "No key is saved any more. Dobbin uses the local model.\n";
    return ExitCode::done;
}

ExitCode keyStatusCommand(const PlainOptions& options, const Console& console, Services& services) {
    const auto loaded =
        done([&services] { return services.assistant().loadKey(); }, console, services);
    if (!loaded)
        return ExitCode::someFailed;
    const KeyState state = keyState(*loaded, services);
    if (!state.suffix)
        console.say(state.suffix.error());
    if (options.json)
        printJson(state, console.out);
    else
        printText(state, console);
    return state.suffix ? ExitCode::done : ExitCode::someFailed;
}

} // namespace quillon

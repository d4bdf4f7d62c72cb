#include "cli/DraftOutput.h"
#include "cli/JsonOutput.h"
#include "cli/OpenFolder.h"
#include "cli/OpenStore.h"
#include "cli/RunOutput.h"
#include "cli/ShellWord.h"
#include "cli/Verbs.h"
#include "store/Sentences.h"

#include <algorithm>
#include <optional>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What came of keeping the rule.
struct Saving {
    bool isSaved = false;
    std::vector<RunReport> runs = {};
    ExitCode code = ExitCode::done;
};

/// A rule with warnings, or one that trashes files and that nobody has seen before, is saved only
/// when the user has said so, here or beforehand.
bool isAgreed(const DraftedRule& drafted, const WriteRuleOptions& options, const Console& console) {
    const RuleDraft& draft = drafted.draft;
    const bool isUnseenTrash =
        !drafted.isSeen && std::ranges::find(draft.rule.actions, ActionType::trash,
                                             &RuleAction::type) != draft.rule.actions.end();
    if (options.isAgreed || (!draft.needsConsent && !isUnseenTrash))
        return true;
    std::optional<std::string> typed;
    if (!options.json && console.showsProgress)
        typed = console.secretLine(
            draft.needsConsent ? "Save it in spite of the warnings? Type yes (not shown): "
                               : "Save it, although it moves files to the Trash? Type yes (not "
                                 "shown): ");
    const bool isYes = typed && QString::fromStdString(*typed).trimmed().toLower() == u"yes";
    if (isYes)
        return true;
    if (typed)
        console.say(u"The rule is not saved"_s);
    else if (draft.needsConsent)
        console.say(u"The rule is not saved because of its warnings; --anyway saves it all the "
                    "same"_s);
    else
        console.say(u"The rule is not saved because it moves files to the Trash and you hadn't "
                    "seen it; --anyway saves it all the same"_s);
    return false;
}

Saving save(const DraftedRule& drafted, const WriteRuleOptions& options, const Console& console,
            Services& services) {
    if (!isAgreed(drafted, options, console))
        return {.code = ExitCode::someFailed};
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return {.code = open.error()};
    Saving saving;
    saving.runs = open->store.runsOf(
        [&](AppStore& store) {
            store.addRules({drafted.draft.rule}, open->folder.id, RuleSource::dobbin);
        },
        console.mayContinue);
    saving.code = sayWhetherSaved(open->store, console);
    saving.isSaved = saving.code == ExitCode::done;
    return saving;
}

QString savingHint(const DraftedRule& drafted, const FolderPlace& place) {
    if (!place.isWatched)
        return u"To keep it, watch the folder first: quillon folder add %1"_s.arg(
            shellWord(place.folder.path));
    return drafted.draft.needsConsent
               ? u"To keep it in spite of the warnings: add --save --anyway"_s
               : u"To keep it: add --save"_s;
}

ExitCode tellAsJson(const DraftedRule& drafted, const FolderPlace& place,
                    const WriteRuleOptions& options, const Console& console, Services& services) {
    const Saving saving = options.saves ? save(drafted, options, console, services) : Saving{};
    JsonStream json;
    json.beginObject().key("folder").text(place.folder.path);
    writeDraft(json, drafted);
    json.key("saved").truth(saving.isSaved);
    json.key("runs");
    writeRuns(json, saving.runs, console.out);
    json.endObject();
    finish(json, console.out);
    return std::max(saving.code, sayHowRunsEnded(saving.runs, console));
}

ExitCode tell(const DraftedRule& drafted, const FolderPlace& place, const WriteRuleOptions& options,
              const Console& console, Services& services) {
    {
        LineBuffer lines(console.out, console.colored);
        addDraft(drafted, lines);
        if (!options.saves)
            lines.add(savingHint(drafted, place)).endLine();
    }
    console.out.flush(); // before anything is said or asked about it
    if (!options.saves)
        return ExitCode::done;
    const Saving saving = save(drafted, options, console, services);
    {
        LineBuffer lines(console.out, console.colored);
        if (saving.isSaved) {
            lines.add(u"Saved as a rule of %1."_s.arg(place.folder.name())).endLine();
            lines.endLine();
        }
        addRuns(saving.runs, lines);
    }
    return std::max(saving.code, sayHowRunsEnded(saving.runs, console));
}

} // namespace

ExitCode writeRuleCommand(const WriteRuleOptions& options, const Console& console,
                          Services& services) {
    const auto place = folderPlaceAt(options.folder, console, services);
    if (!place)
        return place.error();
    if (options.saves && !place->isWatched) {
        console.say(u"The folder %1 is not watched, so it can keep no rule; first: quillon folder "
                    "add %2"_s.arg(pathText(options.folder), shellWord(place->folder.path)));
        return ExitCode::usage;
    }
    const auto drafted =
        draftRule(QString::fromStdString(options.sentence), *place,
                  options.saves ? DraftSource::memory : DraftSource::model, console, services);
    if (!drafted)
        return sayRefusal(drafted.error(), console);
    return options.json ? tellAsJson(*drafted, *place, options, console, services)
                        : tell(*drafted, *place, options, console, services);
}

} // namespace quillon

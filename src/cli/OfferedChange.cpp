#include "cli/OfferedChange.h"

#include "assistant/DobbinChat.h"
#include "cli/DraftOutput.h"
#include "cli/JsonOutput.h"
#include "cli/OpenStore.h"
#include "cli/Refusal.h"
#include "cli/RuleListOutput.h"
#include "cli/RunOutput.h"
#include "cli/ShellWord.h"
#include "cli/ShortID.h"
#include "model/Uuid.h"
#include "store/Sentences.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Offer {
    QUuid turnID;
    std::size_t index = 0;
    DobbinAction action;
};

/// The one whose id begins so.
Chosen<ChatTurn> answerNamed(const QString& text, const std::vector<ChatTurn>& turns) {
    if (text.size() < shownIDLength)
        return refusal(
            ExitCode::usage,
            u"“%1” is not the id of an answer; give all of it as it was shown"_s.arg(text));
    const auto isMeant = [&](const ChatTurn& turn) {
        return !turn.isUser && uuidText(turn.id).startsWith(text, Qt::CaseInsensitive);
    };
    const auto found = std::ranges::find_if(turns, isMeant);
    if (found == turns.end())
        return refusal(ExitCode::someFailed,
                       u"The conversation has no answer %1; ask again to see what Dobbin "
                       "offers"_s.arg(text));
    if (std::find_if(found + 1, turns.end(), isMeant) != turns.end())
        return refusal(ExitCode::usage,
                       u"Several answers have an id that begins with %1; ask again to see what "
                       "Dobbin offers"_s.arg(text));
    return *found;
}

/// Whoever gives a number alone has the last answer before their eyes, or else means another one.
Chosen<ChatTurn> lastAnswer(const std::vector<ChatTurn>& turns) {
    if (turns.empty() || turns.back().isUser || turns.back().actions.empty())
        return refusal(ExitCode::someFailed,
                       u"The last thing said to Dobbin has no answer that offers a change; ask "
                       "again, or name an earlier answer with --answer ID"_s);
    if (!turns.back().wasShown)
        return refusal(ExitCode::someFailed,
                       u"Nobody has seen what Dobbin's last answer offers, for the command that "
                       "asked was stopped; ask again to see it"_s);
    return turns.back();
}

Chosen<Offer> offerMeant(const AskOptions& options, const std::vector<ChatTurn>& turns) {
    const auto turn = options.answer ? answerNamed(QString::fromStdString(*options.answer), turns)
                                     : lastAnswer(turns);
    if (!turn)
        return std::unexpected(turn.error());
    const std::size_t number = options.number.value_or(0);
    const std::size_t offered = turn->actions.size();
    if (number == 0 || number > offered)
        return refusal(ExitCode::usage,
                       u"There is no change %1; Dobbin's answer offers %2"_s.arg(
                           QString::number(number), counted(offered, u"change"_s)));
    return Offer{turn->id, number - 1, turn->actions[number - 1]};
}

/// "Turn off “Old installers” in Downloads:"
void announce(const DobbinAction& action, const Console& console) {
    QString text = action.label();
    if (action.ruleID)
        text += u" in "_s + action.folderName;
    text += u':';
    if (action.description)
        text += u' ' + *action.description;
    {
        LineBuffer lines(console.out, console.colored);
        lines.add(text, LineBuffer::Style::strong).endLine();
    }
    console.out.flush();
}

ExitCode write(const DobbinAction& action, bool json, const StoreAccess& store,
               const Console& console, Services& services) {
    FolderPlace place;
    store.call([&](AppStore& appStore) {
        for (const WatchedFolder& folder : appStore.folders())
            if (folder.id == action.folderID) {
                place.folder = folder;
                place.isWatched = true;
            } else {
                place.otherFolders.push_back(folder);
            }
        place.handled = appStore.processedFiles().value(uuidText(action.folderID));
    });
    if (!place.isWatched) {
        console.say(u"“%1” is no longer watched"_s.arg(action.folderName));
        return ExitCode::someFailed;
    }
    const QString sentence = action.description.value_or(QString());
    const auto draft = draftRule(sentence, place, DraftSource::model, console, services);
    if (!draft) {
        if (!draft.error().sentence.isEmpty())
            console.say(draft.error().sentence);
        return draft.error().code;
    }
    const QString save =
        u"quillon write-rule %1 %2 --save"_s.arg(shellWord(place.folder.path), shellWord(sentence));
    if (json) {
        JsonStream stream;
        stream.beginObject();
        writeDraft(stream, *draft);
        stream.key("saveWith").text(save).endObject();
        finish(stream, console.out);
        return ExitCode::done;
    }
    LineBuffer lines(console.out, console.colored);
    addDraft(*draft, lines);
    lines.add(u"Not saved. To have it saved: "_s + save).endLine();
    return ExitCode::done;
}

ExitCode showState(const DobbinAction& action, const QString& happened, bool json,
                   const StoreAccess& store, const Console& console) {
    const auto rules = store.call([&](AppStore& appStore) {
        const WatchedFolder* const folder = appStore.folder(action.folderID);
        return folder ? folder->rules : std::vector<Rule>();
    });
    if (!json) {
        LineBuffer lines(console.out, console.colored);
        lines.add(happened + u'.').endLine();
        lines.endLine();
    }
    listRules(rules, json, console);
    return sayWhetherSaved(store, console);
}

} // namespace

QString shortID(const ChatTurn& answer) {
    return uuidText(answer.id).left(shownIDLength);
}

ExitCode carryOutOffer(const AskOptions& options, const StoreAccess& store, const Console& console,
                       Services& services) {
    const bool json = options.json;
    const auto turns = store.call([&](AppStore&) { return services.chat().turns(); });
    const auto offer = offerMeant(options, turns);
    if (!offer)
        return sayRefusal(offer.error(), console);
    const DobbinAction& action = offer->action;
    if (!json && !action.done)
        announce(action, console);
    if (action.kind == DobbinAction::Kind::writeRule)
        return write(action, json, store, console, services);

    Expected<QString> happened;
    const auto reports = store.runsOf(
        [&](AppStore&) { happened = services.chat().apply(offer->turnID, offer->index); },
        console.mayContinue);
    if (!happened) {
        const ExitCode unsaved = sayWhetherSaved(store, console);
        if (unsaved == ExitCode::done)
            console.say(happened.error());
        return ExitCode::someFailed;
    }
    if (action.kind == DobbinAction::Kind::runFolder)
        return json ? tellRunsAsJson(reports, console) : tellRuns(reports, console);
    return showState(action, *happened, json, store, console);
}

} // namespace quillon

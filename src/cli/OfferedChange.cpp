#include "cli/OfferedChange.h"

#include "assistant/DobbinChat.h"
#include "cli/DraftOutput.h"
#include "cli/JsonOutput.h"
#include "cli/OpenStore.h"
#include "cli/Refusal.h"
#include "cli/RuleListOutput.h"
#include "cli/RunOutput.h"
#include "cli/ShellWord.h"
#include "model/Uuid.h"
#include "store/Sentences.h"

#include <algorithm>
#include <ranges>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = DobbinAction::Kind;

struct Offer {
    QUuid turnID;
    std::size_t index = 0;
    DobbinAction action;
};

Chosen<Offer> offerMeant(std::size_t number, const std::vector<ChatTurn>& turns) {
    for (const ChatTurn& turn : turns | std::views::reverse) {
        const std::size_t offered = turn.actions.size();
        if (offered == 0)
            continue;
        if (number > offered)
            return refusal(ExitCode::usage,
                           u"There is no change %1; Dobbin's answer offers %2"_s.arg(
                               QString::number(number), counted(offered, u"change"_s)));
        return Offer{turn.id, number - 1, turn.actions[number - 1]};
    }
    return refusal(ExitCode::someFailed,
                   u"No answer of Dobbin's offers a change; ask him with: quillon ask QUESTION"_s);
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

ExitCode carryOutOffer(std::size_t number, bool json, const StoreAccess& store,
                       const Console& console, Services& services) {
    const auto turns = store.call([&](AppStore&) { return services.chat().turns(); });
    const auto offer = offerMeant(number, turns);
    if (!offer)
        return sayRefusal(offer.error(), console);
    const DobbinAction& action = offer->action;
    if (action.kind == Kind::writeRule)
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
    if (action.kind == Kind::runFolder)
        return json ? tellRunsAsJson(reports, console) : tellRuns(reports, console);
    return showState(action, *happened, json, store, console);
}

} // namespace quillon

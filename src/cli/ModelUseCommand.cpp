#include "cli/LineBuffer.h"
#include "cli/LocalModelChoice.h"
#include "cli/Refusal.h"
#include "cli/Verbs.h"
#include "model/NearestWord.h"
#include "store/SettingsTable.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

Refusal notInstalled(const QString& name, const QList<LocalModel>& installed) {
    std::vector<std::string> names;
    for (const LocalModel& model : installed)
        if (!model.isElsewhere)
            names.push_back(model.name.toStdString());
    const QString download = u"; to download it: quillon model pull %1"_s.arg(name);
    if (names.empty())
        return {ExitCode::usage,
                u"“%1” is not installed, nor is any other model"_s.arg(name) + download};
    return {ExitCode::usage,
            u"“%1” is not installed; the nearest is “%2”"_s.arg(
                name, QString::fromStdString(nearestWord(name.toStdString(), names))) +
                download};
}

} // namespace

ExitCode modelUseCommand(const ModelOptions& options, const Console& console, Services& services) {
    const QString name = QString::fromStdString(options.name);
    const auto library = localModels(console, services, name);
    if (!library)
        return ExitCode::someFailed;
    using Kind = LocalModelState::Kind;
    const Kind kind = library->state.kind;
    if (kind == Kind::notInstalled)
        return sayRefusal(notInstalled(name, library->installed), console);
    if (kind != Kind::ready && kind != Kind::loading) {
        console.say(statusOf(library->state).message);
        return kind == Kind::elsewhere || kind == Kind::cannotAnswer ? ExitCode::usage
                                                                     : ExitCode::someFailed;
    }
    const QString chosen = library->state.name.isEmpty() ? name : library->state.name;
    if (const auto set = setSetting(services.settings(), *findSetting(u"ai.localModel"), chosen);
        !set) {
        console.say(set.error());
        return ExitCode::someFailed;
    }
    LineBuffer(console.out, false).add(u"Dobbin's local model is now %1"_s.arg(chosen)).endLine();
    return ExitCode::done;
}

} // namespace quillon

#include "cli/AddedRules.h"
#include "cli/Inputs.h"
#include "cli/NamedFolder.h"
#include "cli/Verbs.h"
#include "model/RuleFile.h"
#include "store/Sentences.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

ExitCode ruleImportCommand(const RuleFileOptions& options, const Console& console,
                           Services& services) {
    auto rules = readRules(options.file, console, services);
    if (!rules) {
        console.say(rules.error());
        return ExitCode::unreadable;
    }
    const auto open = openFolder(options.folder, console, services);
    if (!open)
        return open.error();
    if (rules->empty())
        console.say(u"There are no rules, so there is nothing to do"_s);
    return addRulesAndRun(*open, std::move(*rules), RuleSource::manual, options.json, console);
}

ExitCode ruleExportCommand(const RuleFileOptions& options, const Console& console,
                           Services& services) {
    const auto folder = viewFolder(options.folder, console, services);
    if (!folder)
        return folder.error();
    const QByteArray bytes = encodeRules(folder->rules);
    if (options.file == "-") {
        console.out.write(bytes.constData(), bytes.size());
        return ExitCode::done;
    }
    const std::string path = absolutePath(options.file, console);
    const QString name = pathText(options.file);
    if (services.platform().fileSystem.status(path)) {
        console.say(
            u"%1 is there already, and nothing is overwritten; give another name"_s.arg(name));
        return ExitCode::someFailed;
    }
    if (const auto written = services.storage().writeDurably(path, bytes); !written) {
        console.say(u"The rules can't be written to %1: %2"_s.arg(name, written.error().message));
        return ExitCode::someFailed;
    }
    console.say(
        u"%1 of %2 in %3"_s.arg(counted(folder->rules.size(), u"rule"_s), folder->name(), name));
    return ExitCode::done;
}

} // namespace quillon

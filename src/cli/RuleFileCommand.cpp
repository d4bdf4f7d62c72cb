#include "cli/AddedRules.h"
#include "cli/Inputs.h"
#include "cli/NamedFolder.h"
#include "cli/NewFile.h"
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
    const QString name = pathText(options.file);
    const auto written =
        writeNewFile(absolutePath(options.file, console), bytes, u"The rules"_s, name, services);
    if (!written)
        return sayRefusal(written.error(), console);
    console.say(
        u"%1 of %2 in %3"_s.arg(counted(folder->rules.size(), u"rule"_s), folder->name(), name));
    return ExitCode::done;
}

} // namespace quillon

#include "cli/Inputs.h"

#include "cli/NamedFolder.h"
#include "model/RuleFile.h"
#include "store/Sentences.h"

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t largestRuleFile = 64 << 20;

Expected<QByteArray> readStream(std::istream& in) {
    QByteArray bytes;
    std::array<char, 1 << 14> chunk{};
    while (in.read(chunk.data(), chunk.size()) || in.gcount() > 0) {
        bytes.append(chunk.data(), in.gcount());
        if (std::size_t(bytes.size()) > largestRuleFile)
            return failure(ErrorKind::invalid, u"it is larger than 64 MB"_s);
    }
    if (in.bad())
        return failure(ErrorKind::io, u"reading failed"_s);
    return bytes;
}

} // namespace

Expected<std::vector<Rule>> readRules(const std::string& source, const Console& console,
                                      Services& services) {
    const bool isStream = source == "-";
    const QString name =
        isStream ? u"The rules on standard input"_s : u"The rule file %1"_s.arg(pathText(source));
    const Expected<QByteArray> bytes =
        isStream ? readStream(console.in)
                 : services.storage().readWhole(absolutePath(source, console), largestRuleFile);
    if (!bytes)
        return failedTo(name + u" can't be read"_s, bytes.error());
    auto rules = decodeRules(*bytes);
    if (!rules)
        return failedTo(name + u" can't be understood"_s, rules.error());
    return rules;
}

Expected<FolderInput> readInput(const FolderOptions& options, const Console& console,
                                Services& services) {
    auto rules = readRules(options.rules, console, services);
    if (!rules)
        return std::unexpected(rules.error());

    const auto folder = plainFolderAt(options.folder, console, services);
    if (!folder)
        return failure(ErrorKind::invalid, folder.error().sentence);
    FolderInput input;
    input.folder = *folder;
    input.folder.isRecursive = options.isRecursive;
    input.folder.skipOnlineOnly = options.skipOnlineOnly;
    input.settings.settleTime = std::chrono::duration<double>(options.settleSeconds);
    input.settings.mayContinue = console.mayContinue;
    auto ready = services.engine(input.settings).readyFiles(input.folder);
    if (!ready)
        return failedTo(u"The folder %1 can't be read"_s.arg(pathText(options.folder)),
                        ready.error());
    input.ready = std::move(*ready);
    input.rules = std::move(*rules);
    if (input.rules.empty())
        console.say(u"There are no rules, so there is nothing to do"_s);
    return input;
}

} // namespace quillon

#include "cli/NamedRule.h"

#include "cli/ShortID.h"
#include "model/NearestWord.h"
#include "model/Uuid.h"
#include "store/Sentences.h"

#include <functional>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<Rule> those(const std::vector<Rule>& rules,
                        const std::function<bool(const Rule&)>& isMeant) {
    std::vector<Rule> found;
    for (const Rule& rule : rules)
        if (isMeant(rule))
            found.push_back(rule);
    return found;
}

} // namespace

Chosen<Rule> ruleMeant(const std::string& given, const std::vector<Rule>& rules) {
    const QString text = QString::fromStdString(given);
    if (rules.empty())
        return refusal(ExitCode::usage,
                       u"The folder has no rules, so there is no “%1”"_s.arg(text));

    auto found = those(
        rules, [&](const Rule& rule) { return rule.name.compare(text, Qt::CaseInsensitive) == 0; });
    bool isNumber = false;
    const std::size_t number = text.toULong(&isNumber);
    if (found.empty() && isNumber && number >= 1 && number <= rules.size())
        return rules[number - 1];
    if (found.empty() && text.size() >= shortestIDPrefix)
        found = those(rules, [&](const Rule& rule) {
            return uuidText(rule.id).startsWith(text, Qt::CaseInsensitive);
        });
    if (found.size() == 1)
        return found.front();
    if (found.size() > 1)
        return refusal(ExitCode::usage,
                       u"%1 are meant by “%2”; give the number of one, see quillon "
                       "rule list"_s.arg(counted(found.size(), u"rule"_s), text));
    if (isNumber)
        return refusal(ExitCode::usage, u"There is no rule %1; the folder has %2"_s.arg(
                                            text, counted(rules.size(), u"rule"_s)));
    std::vector<std::string> names;
    for (const Rule& rule : rules)
        names.push_back(rule.name.toStdString());
    return refusal(ExitCode::usage, u"The folder has no rule “%1”; the nearest is “%2”"_s.arg(
                                        text, QString::fromStdString(nearestWord(given, names))));
}

} // namespace quillon

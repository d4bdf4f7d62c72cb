#include "assistant/RuleName.h"

#include "assistant/PlainLine.h"
#include "assistant/SmartName.h"
#include "model/PathText.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestName = 60;
constexpr qsizetype longestFolder = 40;

bool isLineBreakOrControl(char32_t c) {
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

bool saysSomething(const QString& text) {
    return std::ranges::any_of(text.toUcs4(),
                               [](char32_t c) { return QChar::isLetterOrNumber(c); });
}

/// "File into Receipts"; without a folder that can be named, `otherwise`.
QString withFolder(const QString& deed, const RuleAction& action, const QString& otherwise) {
    const auto folder = cleanName(lastPathComponent(action.destination.value_or(QString())));
    return folder ? (deed + cutTo(*folder, longestFolder)).trimmed() : otherwise;
}

} // namespace

QString ruleName(const QString& said, const Rule& rule) {
    const QString trimmed = said.trimmed();
    if (trimmed.size() > longestName || std::ranges::any_of(trimmed.toUcs4(), isLineBreakOrControl))
        return shortName(rule);
    const QString name = plainLine(trimmed).trimmed();
    return saysSomething(name) ? name : shortName(rule);
}

QString shortName(const Rule& rule) {
    if (rule.actions.empty())
        return u"New rule"_s;
    const RuleAction& first = rule.actions.front();
    switch (first.type) {
    case ActionType::move:
        return withFolder(u"File into "_s, first, u"File away"_s);
    case ActionType::copy:
        return withFolder(u"Copy to "_s, first, u"Copy files"_s);
    case ActionType::rename:
        return u"Rename files"_s;
    case ActionType::renameWithDobbin:
        return u"Rename with Dobbin"_s;
    case ActionType::addTag:
        return u"Tag %1 files"_s.arg(rawValue(first.tag));
    case ActionType::removeTag:
        return u"Remove %1 tags"_s.arg(rawValue(first.tag));
    case ActionType::sortIntoSubfolder:
        return u"Sort "_s + rawValue(first.sortBy).toLower();
    case ActionType::unpack:
        return u"Unpack archives"_s;
    case ActionType::runShortcut:
        return u"Run a shortcut"_s;
    case ActionType::runScript:
        return u"Run a script"_s;
    case ActionType::trash:
        break;
    }
    return u"Trash files"_s;
}

} // namespace quillon

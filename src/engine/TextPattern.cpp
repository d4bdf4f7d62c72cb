#include "engine/TextPattern.h"

#include "engine/TextSubject.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

// A fortieth of the engine's own limit, which lets (a+)+$ take 25 ms on one long name. Patterns of
// another kind stay far below it.
constexpr auto stepLimit = "(*LIMIT_MATCH=250000)"_L1;
// A limit of the pattern's own would replace ours.
constexpr auto ownLimit = "(*LIMIT_"_L1;

QRegularExpression compiled(const QString& pattern) {
    QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::UseUnicodePropertiesOption);
    expression.optimize();
    return expression;
}

} // namespace

TextPattern::TextPattern(const QString& pattern)
    : expression_(compiled(stepLimit + composed(pattern)))
    , isValid_(expression_.isValid() && !pattern.contains(ownLimit)) {}

TextPattern::TextPattern(const TextPattern& other)
    : expression_(compiled(other.expression_.pattern())), isValid_(other.isValid_) {}

TextPattern& TextPattern::operator=(const TextPattern& other) {
    return *this = TextPattern(other);
}

QRegularExpressionMatch TextPattern::firstMatch(QStringView subject) const {
    if (!isValid_ || subject.size() > longestSubject)
        return {};
    return expression_.match(subject, 0, QRegularExpression::NormalMatch,
                             QRegularExpression::DontCheckSubjectStringMatchOption);
}

bool TextPattern::isFoundIn(QStringView subject) const {
    return firstMatch(subject).hasMatch();
}

std::optional<QStringList> TextPattern::captures(QStringView subject) const {
    const QRegularExpressionMatch match = firstMatch(subject);
    if (!match.hasMatch())
        return std::nullopt;
    QStringList groups;
    for (int group = 1; group <= expression_.captureCount(); ++group)
        groups.append(match.captured(group));
    return groups;
}

} // namespace quillon

#include "engine/TextMatch.h"

namespace quillon {

TextMatch::TextMatch(MatchOperator op, const QString& value)
    : op_(op), value_(folded(composed(value))) {
    if (op == MatchOperator::contains)
        finder_.setPattern(value_);
    if (op == MatchOperator::matchesRegex)
        pattern_.emplace(value);
}

bool TextMatch::holdsFor(const TextSubject& subject) const {
    switch (op_) {
    case MatchOperator::contains:
        return finder_.indexIn(subject.lower) >= 0;
    case MatchOperator::is:
        return subject.lower == value_;
    case MatchOperator::isNot:
        return subject.lower != value_;
    case MatchOperator::beginsWith:
        return subject.lower.startsWith(value_);
    case MatchOperator::endsWith:
        return subject.lower.endsWith(value_);
    case MatchOperator::matchesRegex:
        return pattern_->isFoundIn(subject.text);
    default:
        return false;
    }
}

} // namespace quillon

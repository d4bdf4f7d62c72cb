#pragma once

#include "engine/TextPattern.h"
#include "engine/TextSubject.h"
#include "model/MatchOperator.h"

#include <QString>
#include <QStringMatcher>

#include <optional>

namespace quillon {

/// One text operator with its value, ready to be held against many texts. Letter case is ignored.
/// An operator that is not about text never holds. Any thread.
class TextMatch {
public:
    TextMatch(MatchOperator op, const QString& value);

    [[nodiscard]] bool holdsFor(const TextSubject& subject) const;

private:
    MatchOperator op_;
    QString value_;
    QStringMatcher finder_;
    std::optional<TextPattern> pattern_;
};

} // namespace quillon

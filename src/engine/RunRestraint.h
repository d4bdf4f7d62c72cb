#pragma once

#include "model/Rule.h"

#include <QString>

namespace quillon {

/// Keeps a run from doing something again.
class RunRestraint {
public:
    virtual ~RunRestraint() = default;

    /// Whether the rule has acted on that version of the file, so that mayAct() will refuse it.
    /// `fileKey` is the file's as listed, here and below. Any thread.
    [[nodiscard]] virtual bool hasActed(const Rule& rule, const QString& fileKey) const = 0;

    /// Asked on the run's thread, once for each file that a rule has taken and before anything is
    /// written down; a file that is refused is left alone by the later rules too.
    [[nodiscard]] virtual bool mayAct(const Rule& rule, const QString& fileKey) = 0;
};

} // namespace quillon

#pragma once

#include "model/Rule.h"

#include <QString>

namespace quillon {

/// Keeps a run from doing something again. Asked on the run's thread, once for each file that a
/// rule has taken and before anything is written down; a file that is refused is left alone by the
/// later rules too.
class RunRestraint {
public:
    virtual ~RunRestraint() = default;

    /// `fileKey` is the file's as listed.
    [[nodiscard]] virtual bool mayAct(const Rule& rule, const QString& fileKey) = 0;
};

} // namespace quillon

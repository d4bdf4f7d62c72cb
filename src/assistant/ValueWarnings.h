#pragma once

#include "model/Rule.h"

#include <QStringList>

namespace quillon {

/// Sentences about conditions that hold for no file, or for any, because their value isn't one that
/// is understood: a kind that there isn't, a number that is none. Models write such things.
[[nodiscard]] QStringList valueWarnings(const Rule& rule);

} // namespace quillon

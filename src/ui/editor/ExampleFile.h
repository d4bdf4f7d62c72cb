#pragma once

#include "platform/Clock.h"

#include <QStringList>

#include <string>

namespace quillon {

/// A file of the folder, to show on it what a rule would do.
struct ExampleFile {
    std::string name;
    Timestamp modified;
    QStringList captures = {}; ///< what the rule's pattern captures in it

    bool operator==(const ExampleFile&) const = default;
};

} // namespace quillon

#pragma once

#include "model/WatchedFolder.h"
#include "platform/UserFolders.h"

#include <QTemporaryDir>

#include <string>

namespace quillon::testing {

/// A home with folders, files, rules and a past, for pictures and for trying things by hand.
class SampleHome {
public:
    SampleHome();

    [[nodiscard]] UserFolders folders() const;
    [[nodiscard]] std::string at(const std::string& name) const;

private:
    QTemporaryDir root_;
};

} // namespace quillon::testing

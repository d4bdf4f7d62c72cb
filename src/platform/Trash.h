#pragma once

#include "platform/FileSystem.h"

#include <string>

namespace quillon {

/// The user's trash. When anything fails the file stays where it was. Any thread.
class Trash {
public:
    virtual ~Trash() = default;

    /// Moves the file to the trash of its file system and returns where it lies now. Fails with
    /// `unsupported` where that file system has no trash and none can be made.
    [[nodiscard]] virtual Expected<std::string> put(const std::string& path) = 0;

    /// Takes a file back out, to `wanted` or a numbered name beside it, with its record; as
    /// FileSystem::move, but the folder is made where there is none.
    [[nodiscard]] virtual Expected<Placement> restore(const std::string& trashedPath,
                                                      const std::string& wanted) = 0;
};

} // namespace quillon

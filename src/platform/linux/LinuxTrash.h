#pragma once

#include "platform/FileSystem.h"
#include "platform/Trash.h"

namespace quillon {

/// The trash that desktops on Linux share: one in the home folder, one at the top of every other
/// file system.
class LinuxTrash : public Trash {
public:
    /// `homeTrash` is $XDG_DATA_HOME/Trash, made when first needed. `fileSystem` is borrowed.
    LinuxTrash(FileSystem& fileSystem, std::string homeTrash);

    [[nodiscard]] Expected<std::string> put(const std::string& path) override;
    [[nodiscard]] Expected<Placement> restore(const std::string& trashedPath,
                                              const std::string& wanted) override;

private:
    FileSystem& fileSystem_;
    std::string homeTrash_;
};

} // namespace quillon

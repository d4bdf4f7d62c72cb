#pragma once

#include "platform/FileSystem.h"
#include "platform/linux/NumberHints.h"
#include "platform/linux/TemporaryNames.h"

namespace quillon {

/// Users' files, by direct system calls.
class LinuxFileSystem : public FileSystem {
public:
    /// `temporaryTag`, ASCII letters and digits, marks this process's hidden temporaries.
    explicit LinuxFileSystem(std::string temporaryTag);

    [[nodiscard]] Expected<Listing> list(const std::string& folder,
                                         const ListOptions& options) const override;
    [[nodiscard]] Expected<FileStatus> status(const std::string& path) const override;
    [[nodiscard]] std::string resolved(const std::string& path) const override;
    [[nodiscard]] Expected<Placement> move(const std::string& source,
                                           const std::string& wanted) override;
    [[nodiscard]] Expected<Placement> copy(const std::string& source,
                                           const std::string& wanted) override;
    [[nodiscard]] Expected<void> makeFolders(const std::string& path) override;

private:
    TemporaryNames temporaries_;
    NumberHints hints_;
};

} // namespace quillon

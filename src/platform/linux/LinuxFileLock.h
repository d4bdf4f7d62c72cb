#pragma once

#include "platform/Storage.h"
#include "platform/linux/Descriptor.h"

namespace quillon {

/// A whole-file lock of the system, bound to the open file.
class LinuxFileLock : public FileLock {
public:
    [[nodiscard]] static Expected<std::unique_ptr<FileLock>> take(const std::string& path);

private:
    explicit LinuxFileLock(Descriptor file) : file_(std::move(file)) {}

    Descriptor file_;
};

} // namespace quillon

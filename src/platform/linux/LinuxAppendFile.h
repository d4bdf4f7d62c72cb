#pragma once

#include "platform/Storage.h"
#include "platform/linux/Descriptor.h"

namespace quillon {

class LinuxAppendFile : public AppendFile {
public:
    [[nodiscard]] static Expected<std::unique_ptr<AppendFile>> open(const std::string& path);

    [[nodiscard]] Expected<void> append(const QByteArray& bytes) override;
    [[nodiscard]] Expected<void> sync() override;
    [[nodiscard]] Expected<void> clear() override;

private:
    LinuxAppendFile(Descriptor file, off_t size) : file_(std::move(file)), size_(size) {}

    /// Cuts off what an append left half-written.
    [[nodiscard]] Expected<void> cutTo(off_t size);

    Descriptor file_;
    off_t size_;          ///< what was appended whole
    bool isTorn_ = false; ///< there is more in the file than that
};

} // namespace quillon

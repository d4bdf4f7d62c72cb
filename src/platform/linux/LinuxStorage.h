#pragma once

#include "platform/Storage.h"

namespace quillon {

/// Our own files, by direct system calls.
class LinuxStorage : public Storage {
public:
    [[nodiscard]] Expected<QByteArray> readWhole(const std::string& path,
                                                 std::uint64_t maxBytes) const override;
    [[nodiscard]] Expected<void> writeDurably(const std::string& path,
                                              const QByteArray& bytes) override;
    [[nodiscard]] Expected<void> writeNewDurably(const std::string& path,
                                                 const QByteArray& bytes) override;
    [[nodiscard]] Expected<std::unique_ptr<AppendFile>>
    openAppend(const std::string& path) override;
    [[nodiscard]] Expected<std::unique_ptr<FileLock>> tryLock(const std::string& path) override;
    [[nodiscard]] Expected<void> remove(const std::string& path) override;
    [[nodiscard]] Expected<std::string> keepAside(const std::string& path,
                                                  const std::string& wanted) override;
    [[nodiscard]] Expected<unsigned> removeTemporaries(const std::string& folder,
                                                       const std::string& tag) override;
};

} // namespace quillon

#pragma once

#include "platform/Archives.h"
#include "platform/Processes.h"
#include "platform/linux/TemporaryNames.h"

namespace quillon {

/// Unpacks with /usr/bin/bsdtar, which tells every common format by its contents.
class BsdtarArchives : public Archives {
public:
    /// `processes` is borrowed; `temporaryTag` as for LinuxFileSystem.
    BsdtarArchives(Processes& processes, std::string temporaryTag);

    [[nodiscard]] Expected<Unpacked> unpack(const std::string& archive,
                                            const std::string& wantedFolder,
                                            const UnpackLimits& limits) override;

private:
    Processes& processes_;
    TemporaryNames temporaries_;
};

} // namespace quillon

#pragma once

#include "platform/Error.h"
#include "platform/linux/Descriptor.h"

namespace quillon {

/// Tells when another process has ended, however it did.
class ProcessEnd {
public:
    /// Fails with `notFound` when there is no such process any more.
    [[nodiscard]] static Expected<ProcessEnd> of(int process);

    /// Can be read from once it has ended. For an event loop.
    [[nodiscard]] int descriptor() const { return descriptor_.get(); }

private:
    explicit ProcessEnd(Descriptor descriptor) : descriptor_(std::move(descriptor)) {}

    Descriptor descriptor_;
};

/// The number of this process.
[[nodiscard]] int thisProcess();

} // namespace quillon

#pragma once

#include <chrono>
#include <optional>

namespace quillon {

/// Makes batches of changes: the first after a quiet time is delivered at once, and what follows at
/// most once every `latency`. Time is passed in and never runs backwards.
class ChangeCoalescer {
public:
    using Moment = std::chrono::steady_clock::time_point;

    explicit ChangeCoalescer(std::chrono::milliseconds latency) : latency_(latency) {}

    /// Something has changed.
    void note(Moment now);

    /// When the batch that waits is to be delivered; nothing when none waits.
    [[nodiscard]] std::optional<Moment> due() const { return due_; }

    /// Whether a batch is to be delivered now, which it then counts as.
    [[nodiscard]] bool take(Moment now);

private:
    std::chrono::milliseconds latency_;
    std::optional<Moment> due_;
    std::optional<Moment> delivered_;
};

} // namespace quillon

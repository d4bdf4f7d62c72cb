#pragma once

#include "cli/ProgressBar.h"
#include "service/Console.h"

namespace quillon {

/// Says at a terminal that a model is at work, for as long as the object lives.
class ThinkingHint {
public:
    ThinkingHint(const Console& console, const Clock& clock)
        : console_(console), line_(console.err, clock, console.showsProgress) {}

    /// Whether to wait on. To be called over and over meanwhile.
    [[nodiscard]] bool mayContinue() {
        line_.draw("Dobbin is thinking…");
        return !console_.mayContinue || console_.mayContinue();
    }

private:
    const Console& console_;
    ProgressBar line_;
};

} // namespace quillon

#pragma once

#include "platform/Clock.h"

#include <cstdint>
#include <ostream>
#include <string>

namespace quillon {

/// One line on a terminal that is drawn over and over, and only when the work takes long enough for
/// somebody to wonder. Gone when the object is.
class ProgressBar {
public:
    ProgressBar(std::ostream& terminal, const Clock& clock, bool isShown);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void update(std::size_t done, std::size_t total);
    void updateBytes(std::int64_t done, std::int64_t total);
    /// A line for work whose length nobody knows.
    void draw(const std::string& line);

private:
    void draw(double done, const std::string& figures);

    std::ostream& terminal_;
    const Clock& clock_;
    bool isShown_;
    std::string drawn_ = {}; ///< what stands there
    Timestamp nextDrawing_;
};

} // namespace quillon

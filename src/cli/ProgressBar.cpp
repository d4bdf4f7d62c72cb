#include "cli/ProgressBar.h"

#include <string>

namespace quillon {
namespace {

constexpr std::chrono::seconds patience{1};
constexpr std::chrono::milliseconds betweenDrawings{100};
constexpr std::size_t cells = 30;

} // namespace

ProgressBar::ProgressBar(std::ostream& terminal, const Clock& clock, bool isShown)
    : terminal_(terminal)
    , clock_(clock)
    , isShown_(isShown)
    , nextDrawing_(isShown ? clock.now() + patience : Timestamp{}) {}

ProgressBar::~ProgressBar() {
    if (isDrawn_)
        (terminal_ << "\r\x1b[K").flush();
}

void ProgressBar::update(std::size_t done, std::size_t total) {
    if (!isShown_ || total == 0)
        return;
    const Timestamp now = clock_.now();
    if (now < nextDrawing_)
        return;
    nextDrawing_ = now + betweenDrawings;
    isDrawn_ = true;
    const std::size_t filled = cells * std::min(done, total) / total;
    terminal_ << "\r\x1b[K[" << std::string(filled, '#') << std::string(cells - filled, '.') << "] "
              << done << " of " << total << " files";
    terminal_.flush();
}

} // namespace quillon

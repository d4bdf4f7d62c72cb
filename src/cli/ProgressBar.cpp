#include "cli/ProgressBar.h"

#include <algorithm>
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
    if (!drawn_.empty())
        (terminal_ << "\r\x1b[K").flush();
}

void ProgressBar::update(std::size_t done, std::size_t total) {
    if (total > 0)
        draw(double(done) / double(total),
             std::to_string(done) + " of " + std::to_string(total) + " files");
}

void ProgressBar::updateBytes(std::int64_t done, std::int64_t total) {
    constexpr std::int64_t megabyte = 1'000'000;
    if (total > 0)
        draw(double(done) / double(total),
             std::to_string(done / megabyte) + " of " + std::to_string(total / megabyte) + " MB");
}

void ProgressBar::draw(double done, const std::string& figures) {
    const auto filled = std::size_t(double(cells) * std::clamp(done, 0.0, 1.0));
    draw('[' + std::string(filled, '#') + std::string(cells - filled, '.') + "] " + figures);
}

void ProgressBar::draw(const std::string& line) {
    if (!isShown_)
        return;
    const Timestamp now = clock_.now();
    if (now < nextDrawing_)
        return;
    nextDrawing_ = now + betweenDrawings;
    if (line == drawn_)
        return;
    drawn_ = line;
    terminal_ << "\r\x1b[K" << line;
    terminal_.flush();
}

} // namespace quillon

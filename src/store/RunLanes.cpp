#include "store/RunLanes.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quillon {

void RunLanes::add(const QString& lane, Piece piece) {
    if (isClosed_)
        return piece.drop();
    const auto [queue, isFree] = waiting_.try_emplace(lane);
    if (isFree)
        begin(lane, piece);
    else
        queue->second.push_back(std::move(piece));
}

void RunLanes::begin(const QString& lane, const Piece& piece) {
    piece.start([this, lane] { next(lane); });
}

void RunLanes::next(const QString& lane) {
    const auto queue = waiting_.find(lane);
    if (!queue->second.empty()) {
        const Piece piece = std::move(queue->second.front());
        queue->second.pop_front();
        begin(lane, piece);
        return;
    }
    waiting_.erase(queue);
    tellIfIdle();
}

void RunLanes::close(std::function<void()> idle) {
    isClosed_ = true;
    idle_ = std::move(idle);
    std::vector<Piece> dropped;
    for (auto& [lane, queue] : waiting_) {
        std::ranges::move(queue, std::back_inserter(dropped));
        queue.clear();
    }
    for (const Piece& piece : dropped)
        piece.drop();
    tellIfIdle();
}

void RunLanes::tellIfIdle() {
    if (!isClosed_ || !waiting_.empty())
        return;
    // Whoever is told may end the lanes.
    const std::function<void()> idle = std::exchange(idle_, {});
    if (idle)
        idle();
}

} // namespace quillon

#pragma once

#include <QString>

#include <deque>
#include <functional>
#include <map>

namespace quillon {

/// Work in lanes: in one lane one piece after the other, lanes side by side. One thread.
class RunLanes {
public:
    struct Piece {
        /// Begins the work. `ended` is to be called once, on this thread, when it has ended.
        std::function<void(std::function<void()> ended)> start;
        std::function<void()> drop; ///< called instead when it will never begin
    };

    /// Begins the piece at once where the lane is free.
    void add(const QString& lane, Piece piece);

    /// Drops what has not begun and whatever is added later, and calls `idle` when all the rest has
    /// ended. A later call replaces `idle`.
    void close(std::function<void()> idle);
    [[nodiscard]] bool isClosed() const { return isClosed_; }

private:
    void begin(const QString& lane, const Piece& piece);
    void next(const QString& lane);
    void tellIfIdle();

    std::map<QString, std::deque<Piece>> waiting_; ///< by lane, for each that is at work
    bool isClosed_ = false;
    std::function<void()> idle_;
};

} // namespace quillon

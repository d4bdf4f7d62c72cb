#pragma once

#include "platform/Background.h"

#include <QObject>
#include <QThreadPool>

namespace quillon {

/// Threads of its own, which end when there has been nothing to do for a while. Belongs to the
/// thread that made it, whose event loop delivers. Its destructor waits for work under way; what
/// has not been delivered by then is dropped.
class ThreadBackground final : public Background {
public:
    ThreadBackground();
    ~ThreadBackground() override;

    void start(std::function<void()> work, std::function<void()> done) override;
    void post(std::function<void()> call) override;

private:
    QObject loop_; ///< lives on the event loop's thread; calls die with it
    QThreadPool threads_;
};

} // namespace quillon

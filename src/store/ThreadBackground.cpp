#include "store/ThreadBackground.h"

namespace quillon {
namespace {

// Scripts may keep a thread for minutes, and undo must not wait for them.
constexpr int mostThreads = 16;
constexpr int idleMilliseconds = 10'000;

} // namespace

ThreadBackground::ThreadBackground() {
    threads_.setMaxThreadCount(mostThreads);
    threads_.setExpiryTimeout(idleMilliseconds);
}

ThreadBackground::~ThreadBackground() {
    threads_.waitForDone();
}

void ThreadBackground::start(std::function<void()> work, std::function<void()> done) {
    threads_.start([this, work = std::move(work), done = std::move(done)]() mutable {
        work();
        // What it holds is let go before the result arrives.
        work = nullptr;
        post(std::move(done));
    });
}

void ThreadBackground::post(std::function<void()> call) {
    QMetaObject::invokeMethod(
        &loop_, [call = std::move(call)] { call(); }, Qt::QueuedConnection);
}

} // namespace quillon

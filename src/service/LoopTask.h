#pragma once

#include "service/Services.h"
#include "service/Signal.h"

#include <QCoroTask>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// What a task on the event loop's thread and the thread that waits for it share. It outlives
/// whoever stops waiting.
template <typename T>
struct LoopTask {
    Signal ended;
    std::optional<T> result;
};

template <typename T>
QCoro::Task<void> carryOut(std::function<QCoro::Task<T>()> start,
                           std::shared_ptr<LoopTask<T>> task) {
    T result = co_await start();
    task->result.emplace(std::move(result));
    task->ended.raise();
}

/// Starts a task on the event loop's thread and waits for what comes of it; nothing when
/// `mayContinue` turns false before, and then the task goes on by itself. From a thread other than
/// the event loop's.
template <typename T>
std::optional<T> resultOnLoop(const Services& services, std::function<QCoro::Task<T>()> start,
                              const std::function<bool()>& mayContinue) {
    const auto task = std::make_shared<LoopTask<T>>();
    services.onLoop([&] { carryOut(std::move(start), task); });
    return task->ended.wait(mayContinue) ? std::move(task->result) : std::nullopt;
}

} // namespace quillon

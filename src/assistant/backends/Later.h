#pragma once

#include <coroutine>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace quillon {

/// A value that comes through a callback, for one coroutine to await. When the callback is dropped
/// without having been called, the value is the one that was given for that case: nobody waits for
/// ever. The coroutine goes on inside of the call or of the drop, so whoever makes either must not
/// count on anything that it may take down.
template <typename T>
class Later {
    struct State {
        std::optional<T> value = {};
        std::coroutine_handle<> waiter = {};

        void settle(T with) {
            if (value)
                return;
            value = std::move(with);
            if (waiter)
                std::exchange(waiter, {}).resume();
        }
    };

    /// What all copies of the callback share.
    struct Sink {
        std::shared_ptr<State> state;
        T otherwise;

        Sink(std::shared_ptr<State> shared, T ifDropped)
            : state(std::move(shared)), otherwise(std::move(ifDropped)) {}
        Sink(const Sink&) = delete;
        Sink& operator=(const Sink&) = delete;
        ~Sink() { state->settle(std::move(otherwise)); }
    };

public:
    /// Calls `start` with the callback.
    template <typename Start>
    Later(Start&& start, T ifDropped) : state_(std::make_shared<State>()) {
        auto sink = std::make_shared<Sink>(state_, std::move(ifDropped));
        std::forward<Start>(start)(std::function<void(T)>(
            [sink = std::move(sink)](T value) { sink->state->settle(std::move(value)); }));
    }

    [[nodiscard]] bool await_ready() const { return state_->value.has_value(); }
    void await_suspend(std::coroutine_handle<> waiter) { state_->waiter = waiter; }
    [[nodiscard]] T await_resume() { return std::move(*state_->value); }

private:
    std::shared_ptr<State> state_;
};

} // namespace quillon

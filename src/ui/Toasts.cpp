#include "ui/Toasts.h"

#include <utility>

namespace quillon {

void Toasts::show(const QString& sentence, const QString& actionLabel,
                  std::function<void()> action) {
    sentence_ = sentence;
    actionLabel_ = actionLabel;
    action_ = std::move(action);
    Q_EMIT shown();
}

void Toasts::act() {
    if (const auto action = std::exchange(action_, {}))
        action();
}

} // namespace quillon

#include "ui/Question.h"

#include <utility>

namespace quillon {

void Question::ask(Words words, std::function<void()> agreed) {
    words_ = std::move(words);
    agreed_ = std::move(agreed);
    isOpen_ = true;
    Q_EMIT changed();
}

void Question::agree() {
    const auto agreed = std::exchange(agreed_, {});
    decline();
    if (agreed)
        agreed();
}

void Question::decline() {
    if (!std::exchange(isOpen_, false))
        return;
    agreed_ = {};
    Q_EMIT changed();
}

} // namespace quillon

#pragma once

#include <QCoreApplication>

#include <array>
#include <memory>

namespace quillon::testing {

/// The one application object, which an event loop wants, unless somebody has made it already.
class EventLoopApplication {
    static inline std::array<char, 5> name_{"test"};
    static inline std::array<char*, 2> arguments_{name_.data(), nullptr};
    static inline int count_ = 1;
    std::unique_ptr<QCoreApplication> application_ =
        QCoreApplication::instance()
            ? nullptr
            : std::make_unique<QCoreApplication>(count_, arguments_.data());
};

} // namespace quillon::testing

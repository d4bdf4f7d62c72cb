#pragma once

#include <QGuiApplication>

#include <array>
#include <memory>

namespace quillon::testing {

/// The one application object for what draws or has colours, without a display. It goes with its
/// test, so that those that make another in the same process can.
class GuiApplication {
public:
    GuiApplication() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QGuiApplication>(count_, arguments_.data());
    }

private:
    static inline std::array<char, 5> name_{"test"};
    static inline std::array<char*, 2> arguments_{name_.data(), nullptr};
    static inline int count_ = 1;
    std::unique_ptr<QGuiApplication> application_;
};

} // namespace quillon::testing

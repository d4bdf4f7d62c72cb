#pragma once

#include <QGuiApplication>

#include <array>

namespace quillon::testing {

/// The one application object for what draws or has colours, without a display. It stays, for what
/// draws windows doesn't outlive one to serve a second.
class GuiApplication {
public:
    GuiApplication() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
        static auto* const application = new QGuiApplication(count_, arguments_.data());
        Q_UNUSED(application)
    }

private:
    static inline std::array<char, 5> name_{"test"};
    static inline std::array<char*, 2> arguments_{name_.data(), nullptr};
    static inline int count_ = 1;
};

} // namespace quillon::testing

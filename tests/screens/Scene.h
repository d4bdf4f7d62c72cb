#pragma once

#include "SampleHome.h"
#include "app/QmlScene.h"
#include "support/FakeDesktop.h"
#include "support/ModelServer.h"

#include <chrono>
#include <functional>
#include <vector>

namespace quillon::testing {

/// All that a scene can arrange before its picture is taken.
struct Stage {
    AppModel& model;
    QQuickWindow& window;
    AppStore& store;
    Services& services;
    SampleHome& home;
    FakeDesktop& desktop;
    ModelServer& server; ///< the model on this computer, which has answers for everything
};

/// One screen in one state.
struct Scene {
    QString name;
    QString window = QStringLiteral("MainWindow");
    SampleHome::Contents home = SampleHome::Contents::full;
    bool isFirstRun = false;
    /// Called once the window is shown.
    std::function<void(Stage&)> arrange = [](Stage&) {};
    /// How long what comes from the background and every animation take.
    std::chrono::milliseconds settling = std::chrono::milliseconds(1200);
    /// What the picture then waits for still.
    std::function<bool(Stage&)> isReady = [](Stage&) { return true; };
};

// One function a file of scenes; all of them are listed in main.cpp.
[[nodiscard]] std::vector<Scene> controlsScenes();
[[nodiscard]] std::vector<Scene> mainScenes();
[[nodiscard]] std::vector<Scene> editorScenes();
[[nodiscard]] std::vector<Scene> reviewScenes();
[[nodiscard]] std::vector<Scene> historyScenes();
[[nodiscard]] std::vector<Scene> dobbinScenes();

} // namespace quillon::testing

#pragma once

#include "platform/DesktopAppearance.h"
#include "ui/AppModel.h"
#include "ui/DesktopLook.h"

#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

namespace quillon {

/// The engine that shows Quillon's windows, with the model in it as `App` and the desktop's look as
/// `Desktop`. The model and the appearance, if there is one, are borrowed and outlive it.
[[nodiscard]] std::unique_ptr<QQmlEngine> makeQmlEngine(AppModel& model,
                                                        DesktopAppearance* appearance = nullptr);

/// What that engine's windows know as `Desktop`.
[[nodiscard]] DesktopLook& desktopLook(const QQmlEngine& engine);

/// A window of the module "Quillon", such as "MainWindow", not yet shown. A mistake in the QML ends
/// the process: nothing that the user did or has can cause one.
[[nodiscard]] std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const QString& type);

} // namespace quillon

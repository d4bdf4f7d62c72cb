#pragma once

#include "Scene.h"

#include <QQuickItem>

namespace quillon::testing {

/// The item of that QML type that comes so many after the first, from the top down.
[[nodiscard]] QQuickItem* findItem(QQuickItem* root, const QByteArray& type, int after = 0);
[[nodiscard]] QQuickItem* findItem(Stage& stage, const QByteArray& type, int after = 0);

/// Once lists and sheets have been laid out.
void later(Stage& stage, std::function<void()> then);

/// Calls a method of such an item, or opens its list or menu, later.
[[nodiscard]] std::function<void(Stage&)> calling(const QByteArray& type, const char* method,
                                                  int after = 0);
[[nodiscard]] std::function<void(Stage&)> opening(const QByteArray& type, int after = 0);

/// Presses keys one after the other where the focus is.
void press(Stage& stage, const std::vector<Qt::Key>& keys);

} // namespace quillon::testing

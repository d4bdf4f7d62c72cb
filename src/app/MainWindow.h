#pragma once

#include "app/DockPolicy.h"
#include "app/WindowFrame.h"
#include "platform/Settings.h"
#include "platform/WindowHints.h"

#include <QQuickWindow>
#include <QTimer>

#include <memory>
#include <string>

namespace quillon {

/// The one main window: made once, hidden instead of closed, and where it was the last time.
class MainWindow final : public QObject {
    Q_OBJECT

public:
    /// Borrows the settings and the hints; `window` is the one of QML.
    MainWindow(std::unique_ptr<QQuickWindow> window, Settings& settings, WindowHints& hints);
    ~MainWindow() override;

    [[nodiscard]] QQuickWindow& window() { return *window_; }
    [[nodiscard]] bool isShown() const;

    /// In front and with the keyboard. The token is what the desktop gave for that, or empty.
    void show(const std::string& activationToken = {});
    void showMinimized();
    /// Hides it, or minimizes it, as the policy says.
    void close();
    void setPolicy(const DockPolicy& policy);
    void saveFrame();
    /// Another window in the middle of this one; of its screen while it can't be seen.
    void centre(QWindow& other) const;

Q_SIGNALS:
    void quitRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restoreFrame();
    void noteFrame();
    void applyHints();

    std::unique_ptr<QQuickWindow> window_;
    Settings& settings_;
    WindowHints& hints_;
    DockPolicy policy_;
    WindowFrame frame_; ///< as it was when it was last neither maximized nor minimized
    bool isX11_;
    QTimer saving_;
};

} // namespace quillon

#pragma once

#include <QObject>

#include <functional>

namespace quillon {

/// The one sentence at the bottom of the main window, with at most one thing to do about it. A new
/// one replaces the last.
class Toasts final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString sentence READ sentence NOTIFY shown)
    Q_PROPERTY(QString actionLabel READ actionLabel NOTIFY shown)

public:
    using QObject::QObject;

    void show(const QString& sentence, const QString& actionLabel = {},
              std::function<void()> action = {});

    [[nodiscard]] QString sentence() const { return sentence_; }
    [[nodiscard]] QString actionLabel() const { return actionLabel_; }
    /// Does it, once.
    Q_INVOKABLE void act();

Q_SIGNALS:
    void shown();

private:
    QString sentence_;
    QString actionLabel_;
    std::function<void()> action_;
};

} // namespace quillon

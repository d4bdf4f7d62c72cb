#pragma once

#include <QObject>

#include <functional>

namespace quillon {

/// Which sheet lies over the main window: one at a time, and one that is opened replaces the last.
/// The names are those of the QML types: "RuleEditorSheet".
class Sheets final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString current READ current NOTIFY currentChanged)

public:
    /// Whether the open sheet may go. One that minds says no, asks the user, and calls `proceed`
    /// when they agree.
    using Guard = std::function<bool(std::function<void()> proceed)>;

    using QObject::QObject;

    /// Empty when there is none.
    [[nodiscard]] QString current() const { return current_; }
    /// Another sheet than the open one comes when that one doesn't mind.
    Q_INVOKABLE void open(const QString& name);
    /// At once, whatever was changed in it: a sheet that minds asks before it calls this.
    Q_INVOKABLE void close();

    void setGuard(Guard guard) { guard_ = std::move(guard); }
    /// Calls `then` once nothing that somebody changed in a sheet would be lost by it; never, when
    /// the user wants to go on with that. For whoever ends the program or changes what is shown.
    void leave(const std::function<void()>& then);

Q_SIGNALS:
    void currentChanged();

private:
    void show(const QString& name);

    QString current_;
    Guard guard_;
};

} // namespace quillon

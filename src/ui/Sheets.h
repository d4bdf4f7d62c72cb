#pragma once

#include <QObject>

namespace quillon {

/// Which sheet lies over the main window: one at a time, and one that is opened replaces the last.
/// The names are those of the QML types: "RuleEditorSheet".
class Sheets final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString current READ current NOTIFY currentChanged)

public:
    using QObject::QObject;

    /// Empty when there is none.
    [[nodiscard]] QString current() const { return current_; }
    Q_INVOKABLE void open(const QString& name);
    /// At once, whatever was changed in it: a sheet that minds asks before it calls this.
    Q_INVOKABLE void close();

Q_SIGNALS:
    void currentChanged();

private:
    QString current_;
};

} // namespace quillon

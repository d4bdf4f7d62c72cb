#pragma once

#include <QObject>

#include <functional>

namespace quillon {

/// Something that is asked within a sheet before it goes on, with two answers.
class Question final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString yes READ yes NOTIFY changed)
    Q_PROPERTY(QString no READ no NOTIFY changed)
    Q_PROPERTY(bool isDestructive READ isDestructive NOTIFY changed)

public:
    struct Words {
        QString title;
        QString text = {};
        QString yes; ///< empty: there is nothing to agree to
        QString no;
        bool isDestructive = false; ///< "yes" loses something
    };

    using QObject::QObject;

    /// Takes the place of one that is open, which counts as answered with no.
    void ask(Words words, std::function<void()> agreed);

    Q_INVOKABLE void agree();
    Q_INVOKABLE void decline();

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    [[nodiscard]] QString title() const { return words_.title; }
    [[nodiscard]] QString text() const { return words_.text; }
    [[nodiscard]] QString yes() const { return words_.yes; }
    [[nodiscard]] QString no() const { return words_.no; }
    [[nodiscard]] bool isDestructive() const { return words_.isDestructive; }

Q_SIGNALS:
    void changed();

private:
    Words words_;
    bool isOpen_ = false;
    std::function<void()> agreed_;
};

} // namespace quillon

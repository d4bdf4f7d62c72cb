#pragma once

#include <QObject>
#include <QStringList>

namespace quillon {

/// A rule of the folder that is shown.
struct RuleRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString iconName MEMBER iconName)
    Q_PROPERTY(QString conditionText MEMBER conditionText)
    Q_PROPERTY(QString actionText MEMBER actionText)
    Q_PROPERTY(QStringList warnings MEMBER warnings)
    Q_PROPERTY(bool asksDobbin MEMBER asksDobbin)
    Q_PROPERTY(bool isEnabled MEMBER isEnabled)
    Q_PROPERTY(QString description MEMBER description)

public:
    QString key = {}; ///< its id
    QString name = {};
    QString iconName = {};      ///< of its first action
    QString conditionText = {}; ///< its sentence up to the arrow
    QString actionText = {};    ///< and after it
    QStringList warnings = {};
    bool asksDobbin = false;
    bool isEnabled = true;
    QString description = {}; ///< all of it in words, to be read aloud

    bool operator==(const RuleRow&) const = default;
};

} // namespace quillon

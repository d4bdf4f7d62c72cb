#pragma once

#include <QObject>
#include <QString>

namespace quillon {

/// A folder in the popover.
struct PopoverFolder {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(int tint MEMBER tint)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString statusText MEMBER statusText)
    Q_PROPERTY(bool isTrouble MEMBER isTrouble)
    Q_PROPERTY(bool canRun MEMBER canRun)
    Q_PROPERTY(bool isRunning MEMBER isRunning)

public:
    QString key = {}; ///< its id
    QString name = {};
    int tint = 0;
    QString symbol = {};
    QString statusText = {};
    bool isTrouble = false;
    bool canRun = true;
    bool isRunning = false;

    bool operator==(const PopoverFolder&) const = default;
};

} // namespace quillon

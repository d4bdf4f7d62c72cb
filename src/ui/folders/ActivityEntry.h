#pragma once

#include "model/LogEntry.h"

#include <QObject>
#include <QString>

namespace quillon {

/// An entry of the log below the rules of its folder.
struct ActivityEntry {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString fileName MEMBER fileName)
    Q_PROPERTY(QString kind MEMBER kind)
    Q_PROPERTY(QString secondLine MEMBER secondLine)
    Q_PROPERTY(QString timeText MEMBER timeText)
    Q_PROPERTY(QString spokenTime MEMBER spokenTime)
    Q_PROPERTY(bool canReveal MEMBER canReveal)
    Q_PROPERTY(bool canUndo MEMBER canUndo)
    Q_PROPERTY(bool isError MEMBER isError)

public:
    QString key = {}; ///< its id
    QString fileName = {};
    QString kind = {};
    QString secondLine = {}; ///< the rule, and what was done
    QString timeText = {};
    QString spokenTime = {};
    bool canReveal = true;
    bool canUndo = false;
    bool isError = false;

    bool operator==(const ActivityEntry&) const = default;
};

[[nodiscard]] ActivityEntry activityEntry(const LogEntry& entry, Timestamp now);

} // namespace quillon

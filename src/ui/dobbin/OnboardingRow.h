#pragma once

#include <QObject>
#include <QString>

namespace quillon {

/// A folder that the introduction offers to watch.
struct OnboardingRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString place MEMBER place)
    Q_PROPERTY(QString countText MEMBER countText)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(int tint MEMBER tint)
    Q_PROPERTY(bool isTicked MEMBER isTicked)
    Q_PROPERTY(bool canTick MEMBER canTick)
    Q_PROPERTY(bool isWatched MEMBER isWatched)

public:
    QString key = {}; ///< its path
    QString name = {};
    QString place = {};     ///< the path as people read it
    QString countText = {}; ///< empty while the files are being counted
    QString reason = {};    ///< why it can't be watched
    QString symbol = {};
    int tint = 0;
    bool isTicked = false;
    bool canTick = true;
    bool isWatched = false; ///< already

    bool operator==(const OnboardingRow&) const = default;
};

} // namespace quillon

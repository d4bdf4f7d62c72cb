#pragma once

#include <QObject>
#include <QString>

namespace quillon {

/// A folder in the sidebar.
struct FolderRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(int tint MEMBER tint)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(bool isTrouble MEMBER isTrouble)
    Q_PROPERTY(bool isMissing MEMBER isMissing)
    Q_PROPERTY(QString badgeKind MEMBER badgeKind)
    Q_PROPERTY(QString badgeText MEMBER badgeText)
    Q_PROPERTY(QString badgeIcon MEMBER badgeIcon)
    Q_PROPERTY(QString description MEMBER description)

public:
    QString key = {}; ///< its id
    QString name = {};
    QString path = {}; ///< as people read it
    int tint = 0;
    QString symbol = {};
    QString caption = {}; ///< when it is tidied, or what is wrong with it
    bool isTrouble = false;
    bool isMissing = false;
    QString badgeKind = {}; ///< empty without a badge, else "error" or "warn"
    QString badgeText = {};
    QString badgeIcon = {};
    QString description = {}; ///< all of it in words, to be read aloud

    bool operator==(const FolderRow&) const = default;
};

} // namespace quillon

#pragma once

#include <QObject>
#include <QStringList>

namespace quillon {

/// The one sentence above the rules about what is wrong, and what can be done about it.
struct FolderBanner {
    Q_GADGET
    Q_PROPERTY(QString kind MEMBER kind)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString glyph MEMBER glyph)
    Q_PROPERTY(QString iconName MEMBER iconName)
    Q_PROPERTY(QStringList actions MEMBER actions)

public:
    QString kind = {}; ///< empty without a banner, else "warn" or "error"
    QString text = {};
    QString glyph = {};
    QString iconName = {};
    QStringList actions = {}; ///< what the buttons say

    bool operator==(const FolderBanner&) const = default;
};

} // namespace quillon

#pragma once

#include <QObject>
#include <QString>

namespace quillon {

/// What came of one recipe, or of one file that could not be tidied.
struct CleanupResultRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString iconName MEMBER iconName)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool isError MEMBER isError)

public:
    QString key = {};
    QString title = {};
    QString iconName = {};
    QString text = {};
    bool isError = false;

    bool operator==(const CleanupResultRow&) const = default;
};

} // namespace quillon

#pragma once

#include <QObject>
#include <QString>

namespace quillon {

/// A row of the history: an entry, or the head of a batch with its entries below it while it is
/// open.
struct HistoryRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString entryId MEMBER entryId)
    Q_PROPERTY(bool isBatch MEMBER isBatch)
    Q_PROPERTY(bool isInBatch MEMBER isInBatch)
    Q_PROPERTY(bool isOpen MEMBER isOpen)
    Q_PROPERTY(bool isFirst MEMBER isFirst)
    Q_PROPERTY(bool isLast MEMBER isLast)
    Q_PROPERTY(QString day MEMBER day)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString kind MEMBER kind)
    Q_PROPERTY(QString secondLine MEMBER secondLine)
    Q_PROPERTY(QString timeText MEMBER timeText)
    Q_PROPERTY(QString spokenTime MEMBER spokenTime)
    Q_PROPERTY(QString folderName MEMBER folderName)
    Q_PROPERTY(int tint MEMBER tint)
    Q_PROPERTY(bool canReveal MEMBER canReveal)
    Q_PROPERTY(bool canUndo MEMBER canUndo)
    Q_PROPERTY(bool isError MEMBER isError)
    Q_PROPERTY(bool isUndoing MEMBER isUndoing)
    Q_PROPERTY(double progress MEMBER progress)

public:
    QString key = {};
    QString entryId = {}; ///< empty for the head of a batch
    bool isBatch = false;
    bool isInBatch = false;
    bool isOpen = false;
    bool isFirst = false; ///< of its day
    bool isLast = false;
    QString day = {}; ///< "2026-11-20"
    QString title = {};
    QString kind = {};
    QString secondLine = {};
    QString timeText = {};
    QString spokenTime = {};
    QString folderName = {};
    int tint = -1; ///< none for a folder that is not watched any more
    bool canReveal = false;
    bool canUndo = false;
    bool isError = false;
    bool isUndoing = false;
    double progress = 0; ///< of taking back, 0 to 1

    bool operator==(const HistoryRow&) const = default;
};

} // namespace quillon

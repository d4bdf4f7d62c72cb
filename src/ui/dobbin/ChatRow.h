#pragma once

#include "assistant/ChatTurn.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <vector>

namespace quillon {

/// A turn of the conversation with Dobbin as it is shown.
struct ChatRow {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString day MEMBER day)
    Q_PROPERTY(bool isUser MEMBER isUser)
    Q_PROPERTY(bool isError MEMBER isError)
    Q_PROPERTY(QString said MEMBER text)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(QVariantList entries MEMBER entries)
    Q_PROPERTY(QVariantList changes MEMBER changes)

public:
    QString key = {}; ///< its id
    QString day = {}; ///< the heading that it stands below
    bool isUser = false;
    bool isError = false;
    QString text = {};
    QString spoken = {}; ///< with who says it
    QVariantList entries =
        {}; ///< `key`, `fileName`, `kind`, `what`, `isError`, `canReveal`, `canUndo`
    QVariantList changes = {}; ///< `label`, `detail`, `isDone`

    bool operator==(const ChatRow&) const = default;
};

/// `log` is the activity log as it is now: an entry that is not in it any more, or was undone
/// since, can't be undone.
[[nodiscard]] std::vector<ChatRow> chatRows(const std::vector<ChatTurn>& turns,
                                            const std::vector<LogEntry>& log, Timestamp now);

} // namespace quillon

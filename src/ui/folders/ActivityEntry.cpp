#include "ui/folders/ActivityEntry.h"

#include "model/Uuid.h"
#include "store/Undo.h"
#include "ui/FileKindWord.h"
#include "ui/ShownName.h"
#include "ui/TimeTexts.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

ActivityEntry activityEntry(const LogEntry& entry, Timestamp now) {
    QStringList facts{entry.ruleName, entry.actionSummary};
    facts.removeAll(QString());
    return {.key = uuidText(entry.id),
            .fileName = shownName(entry.fileName),
            .kind = fileKindWord(entry.fileName),
            .secondLine = facts.join(u" · "_s),
            .timeText = entryTimeText(entry.date, now),
            .spokenTime = spokenTimeText(entry.date, now),
            .canReveal = entry.currentPath || entry.originalPath,
            .canUndo = canBeUndone(entry),
            .isError = entry.isError};
}

} // namespace quillon

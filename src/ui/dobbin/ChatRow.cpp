#include "ui/dobbin/ChatRow.h"

#include "model/Uuid.h"
#include "ui/FileKindWord.h"
#include "ui/ShownName.h"
#include "ui/TimeTexts.h"

#include <QCoreApplication>
#include <QVariantMap>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ChatRow)
};

using Log = QHash<QUuid, const LogEntry*>;

QVariantMap shown(const LogEntry& entry, const Log& log) {
    const LogEntry* const now = log.value(entry.id);
    return {{u"key"_s, uuidText(entry.id)},
            {u"fileName"_s, shownName(entry.fileName)},
            {u"kind"_s, fileKindWord(entry.fileName)},
            {u"what"_s, entry.actionSummary},
            {u"isError"_s, entry.isError},
            {u"canReveal"_s, now != nullptr},
            {u"canUndo"_s, now && now->canUndo()}};
}

QVariantMap shown(const DobbinAction& action) {
    return {{u"label"_s, action.label()},
            {u"detail"_s, action.description.value_or(QString())},
            {u"isDone"_s, action.done}};
}

} // namespace

std::vector<ChatRow> chatRows(const std::vector<ChatTurn>& turns, const std::vector<LogEntry>& log,
                              Timestamp now) {
    Log known;
    for (const LogEntry& entry : log)
        known.insert(entry.id, &entry);
    std::vector<ChatRow> rows;
    for (const ChatTurn& turn : turns) {
        ChatRow row{
            .key = uuidText(turn.id),
            .day = dayHeading(localDay(turn.date), now),
            .isUser = turn.isUser,
            .isError = turn.isError,
            .text = turn.text,
            .spoken =
                (turn.isUser ? Texts::tr("You: %1") : Texts::tr("Dobbin: %1")).arg(turn.text)};
        for (const LogEntry& entry : turn.entries)
            row.entries.append(shown(entry, known));
        for (const DobbinAction& action : turn.actions)
            row.changes.append(shown(action));
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace quillon

#include "cli/LogLines.h"

#include "cli/LocalTime.h"
#include "cli/ShortID.h"
#include "model/Uuid.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

void addLogLines(const std::vector<LogEntry>& logs, LineBuffer& lines, bool withPlaces) {
    ColumnWidth names;
    for (const LogEntry& entry : logs)
        names.fit(entry.fileName);
    for (const LogEntry& entry : logs) {
        lines.add(shortID(entry), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(localTime(entry.date), LineBuffer::Style::faint)
            .add(u"  "_s)
            .add(entry.fileName, LineBuffer::Style::plain, names.columns())
            .add(u"  "_s)
            .add(entry.actionSummary,
                 entry.isError ? LineBuffer::Style::bad : LineBuffer::Style::plain)
            .add(u"  (%1)"_s.arg(entry.ruleName), LineBuffer::Style::faint)
            .endLine();
        const std::optional<QString>& place =
            entry.trashedPath ? entry.trashedPath : entry.currentPath;
        if (withPlaces && place)
            lines.add(QString(shownIDLength + 2, u' ')).add(*place).endLine();
    }
}

QString shortID(const LogEntry& entry) {
    return uuidText(entry.id).left(shownIDLength);
}

} // namespace quillon

#include "ui/review/RunTexts.h"

#include "ui/CountTexts.h"

#include <QCoreApplication>

namespace quillon {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RunTexts)
};

/// "Filed 3 files in Downloads", "Couldn’t file 1 file in Downloads", or both; nothing for neither.
QString done(const RunCount& count, const QString& folder) {
    if (count.filed == 0 && count.failed == 0)
        return {};
    if (count.filed == 0)
        return Texts::tr("Couldn’t file %1 in %2", "a number of files, a folder")
            .arg(fileCount(count.failed), folder);
    const QString filed = Texts::tr("Filed %1 in %2", "a number of files, a folder")
                              .arg(fileCount(count.filed), folder);
    return count.failed == 0
               ? filed
               : Texts::tr("%1, %L2 couldn’t be", "what was filed").arg(filed).arg(count.failed);
}

} // namespace

RunCount countOf(const RunResult& run) {
    RunCount count;
    for (const LogEntry& entry : run.entries)
        ++(entry.isError ? count.failed : count.filed);
    return count;
}

QString runText(const RunReport& report) {
    if (report.unlisted)
        return Texts::tr("Quillon can’t read %1.").arg(report.folderName);
    if (report.run.stopped)
        return report.run.stopped->message;
    if (report.unsaved)
        return report.unsaved->message;
    const QString did = done(countOf(report.run), report.folderName);
    const auto waiting = std::size_t(report.run.waiting.size());
    if (waiting > 0)
        return did.isEmpty() ? Texts::tr("Dobbin is looking at %1 in %2 first.",
                                         "a number of files, a folder")
                                   .arg(fileCount(waiting), report.folderName)
                             : Texts::tr("%1, %L2 waiting for Dobbin.", "what was filed")
                                   .arg(did)
                                   .arg(waiting);
    if (!did.isEmpty())
        return Texts::tr("%1.", "what was filed, as a sentence").arg(did);
    if (report.deferred > 0)
        return Texts::tr("%1 in %2 changed just now, and will be looked at in a moment.",
                         "a number of files, a folder")
            .arg(fileCount(report.deferred), report.folderName);
    return Texts::tr("%1 is already tidy.").arg(report.folderName);
}

} // namespace quillon

#include "ui/RunTexts.h"

#include "ui/CountTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace quillon {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RunTexts)
};

} // namespace

RunTexts runTexts(const RunReport& report) {
    const QString& name = report.folderName;
    if (report.unlisted)
        return {.sentence = report.unlisted->message, .brief = {}};
    if (report.run.stopped)
        return {.sentence = report.run.stopped->message, .brief = Texts::tr("Couldn’t finish")};
    if (report.unsaved)
        return {.sentence = report.unsaved->message, .brief = Texts::tr("Couldn’t be saved")};
    const auto& entries = report.run.entries;
    const auto failed = std::size_t(std::ranges::count(entries, true, &LogEntry::isError));
    const std::size_t filed = entries.size() - failed;
    const QString brief = Texts::tr("Filed %1", "a number of files").arg(fileCount(filed));
    if (filed > 0 && failed > 0)
        return {.sentence = Texts::tr("Filed %1 in %2, %3 couldn’t be.",
                                      "a number of files, a folder and a number")
                                .arg(fileCount(filed), name, QString::number(failed)),
                .brief = brief};
    if (filed > 0)
        return {.sentence =
                    Texts::tr("Filed %1 in %2.", "a number of files").arg(fileCount(filed), name),
                .brief = brief};
    if (failed > 0)
        return {.sentence = Texts::tr("%1 in %2 couldn’t be filed.", "a number of files")
                                .arg(fileCount(failed), name),
                .brief = {}};
    if (!report.run.waiting.isEmpty())
        return {.sentence = Texts::tr("Dobbin is thinking about %1 in %2.", "a number of files")
                                .arg(fileCount(std::size_t(report.run.waiting.size())), name),
                .brief = Texts::tr("Dobbin is thinking")};
    if (report.deferred > report.stalled)
        return {.sentence = Texts::tr(
                    "Files that changed in the last few seconds are left to settle first."),
                .brief = Texts::tr("Files are settling")};
    return {.sentence = Texts::tr("%1 is already tidy.", "a folder").arg(name),
            .brief = Texts::tr("Already tidy")};
}

} // namespace quillon

#include "service/AgentLog.h"

#include "service/ShownText.h"
#include "store/Sentences.h"

#include <QDateTime>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// More would drown the rest; all of them are in the activity log.
constexpr std::size_t mostFailures = 20;

QString localTime(Timestamp time) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time).time_since_epoch();
    const QDateTime date = QDateTime::fromSecsSinceEpoch(seconds.count());
    return date.toOffsetFromUtc(date.offsetFromUtc()).toString(Qt::ISODate);
}

} // namespace

void AgentLog::add(const QString& happening) {
    out_ << localTime(clock_.now()).toStdString() << ' ' << shownText(happening).toStdString()
         << '\n';
    out_.flush();
    // A reader that is gone may come back.
    out_.clear();
}

void AgentLog::addRun(const RunReport& report) {
    const auto failed = std::size_t(std::ranges::count_if(report.run.entries, &LogEntry::isError));
    if (report.unlisted)
        return add(u"%1 can't be listed: %2"_s.arg(report.folderName, report.unlisted->message));
    if (report.run.stopped)
        add(u"%1: the run ended early, because the journal can't be written: %2"_s.arg(
            report.folderName, report.run.stopped->message));
    if (report.run.entries.empty())
        return;
    QString line = u"%1: filed %2"_s.arg(report.folderName,
                                         counted(report.run.entries.size() - failed, u"file"_s));
    if (failed > 0)
        line += u", %1 failed"_s.arg(failed);
    if (report.deferred > 0)
        line += u", %1 still settling"_s.arg(report.deferred);
    if (report.run.interrupted)
        line += u", ended early"_s;
    add(line);
    std::size_t told = 0;
    for (const LogEntry& entry : report.run.entries)
        if (entry.isError && told++ < mostFailures)
            add(u"%1: %2: %3 (%4)"_s.arg(report.folderName, entry.fileName, entry.actionSummary,
                                         entry.ruleName));
    if (told > mostFailures)
        add(u"%1: %2 more failed"_s.arg(report.folderName, QString::number(told - mostFailures)));
}

void AgentLog::addAnswers(const QuestionsOutcome& outcome) {
    for (const QString& problem : outcome.problems)
        if (!dobbinProblems_.contains(problem))
            add(dobbinProblem(problem));
    dobbinProblems_ = outcome.problems;
}

void AgentLog::addWatchWarnings(const QStringList& warnings) {
    for (const QString& warning : warnings)
        if (!watchWarnings_.contains(warning))
            add(warning);
    for (const QString& warning : watchWarnings_)
        if (!warnings.contains(warning))
            add(u"No longer so: "_s + warning);
    watchWarnings_ = warnings;
}

void AgentLog::addSaveError(const std::optional<Error>& error) {
    if (error)
        add(u"Saving failed, and is tried again every minute: "_s + error->message);
    else if (savingFails_)
        add(u"Saved again"_s);
    savingFails_ = error.has_value();
}

} // namespace quillon

#include "Hold.h"
#include "assistant/QuestionWords.h"
#include "assistant/RelevantEntries.h"
#include "assistant/TimeSpanInQuestion.h"

#include <cstddef>
#include <cstdint>

using namespace quillon;

namespace {

std::vector<LogEntry> smallLog() {
    std::vector<LogEntry> log;
    for (const char* const name : {"Setup.dmg", "invoice 12.pdf", "R\u00e9\u00e7u.txt"}) {
        LogEntry& entry = log.emplace_back();
        entry.date = Timestamp(std::chrono::hours(24 * 20'000 + 30 * std::int64_t(log.size())));
        entry.fileName = QString::fromUtf8(name);
        entry.ruleName = entry.folderName = entry.actionSummary = entry.fileName;
        entry.currentPath = QChar(u'/') + entry.fileName;
    }
    return log;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<LogEntry> log = smallLog();
    const QString question =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QDateTime now = QDateTime::fromSecsSinceEpoch(86'400 * std::int64_t(20'003));
    const QStringList words = questionWords(question);
    const TimeInQuestion time = timeInQuestion(words, now);
    hold(time.otherWords.size() <= words.size());
    if (time.span && time.span->from && time.span->until)
        hold(time.span->from->isValid() && time.span->until->isValid());
    hold(relevantEntries(question, log, now, 2).entries.size() <= 2);

    LogEntry named;
    named.fileName = question;
    named.ruleName = named.actionSummary = question;
    hold(relevantEntries(QStringLiteral("my invoice.pdf yesterday"), {named}, now, 5)
             .entries.size() <= 1);
    return 0;
}

#include "assistant/RelevantEntries.h"

#include "assistant/QuestionWords.h"
#include "assistant/TimeSpanInQuestion.h"
#include "support/PrintQt.h"

#include <QTimeZone>
#include <gtest/gtest.h>

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

const QTimeZone& berlin() {
    static const QTimeZone zone("Europe/Berlin");
    return zone;
}

QDateTime at(const QString& local) {
    const QDateTime read = QDateTime::fromString(local, u"yyyy-MM-dd HH:mm"_s);
    return QDateTime(read.date(), read.time(), berlin());
}

/// A Saturday.
const QDateTime& now() {
    static const QDateTime moment = at(u"2026-05-23 15:00"_s);
    return moment;
}

LogEntry entry(const QDateTime& date, const QString& file, const QString& folder,
               const QString& rule, const QString& target) {
    LogEntry made{.date = Timestamp(std::chrono::milliseconds(date.toMSecsSinceEpoch())),
                  .fileName = file,
                  .ruleName = rule,
                  .actionSummary = u"moved to "_s + target,
                  .folderName = folder};
    made.isError = target.startsWith(u"failed");
    if (made.isError)
        made.actionSummary = u"move failed: "_s + target.mid(7);
    else if (target == u"Trash")
        made.trashedPath = u"/home/kim/.local/share/Trash/files/"_s + file;
    else
        made.currentPath = u"/home/kim/Documents/"_s + target + u'/' + file;
    return made;
}

/// 400 entries: fourteen to be found, and what has been filed between them, every 6 h 10 min.
std::vector<LogEntry> madeLog() {
    struct Filler {
        QString file, folder, rule, target;
    };
    const std::array<Filler, 6> fillers{{
        {u"Invoice_%1.pdf"_s, u"Downloads"_s, u"File invoices"_s, u"Invoices"_s},
        {u"Screenshot 2026 at %1.png"_s, u"Desktop"_s, u"Tidy screenshots"_s, u"Screens"_s},
        {u"IMG_%1.jpg"_s, u"Camera"_s, u"Sort by month"_s, u"2026-05"_s},
        {u"meeting-notes-%1.docx"_s, u"Downloads"_s, u"Paperwork"_s, u"Notes"_s},
        {u"installer-%1.exe"_s, u"Downloads"_s, u"Old installers"_s, u"Trash"_s},
        {u"podcast_%1.mp3"_s, u"Downloads"_s, u"Listen later"_s, u"Podcasts"_s},
    }};
    std::vector<LogEntry> log{
        entry(at(u"2026-05-23 14:10"_s), u"budget.xlsx"_s, u"Downloads"_s, u"Paperwork"_s,
              u"failed no space left"_s),
        entry(at(u"2026-05-23 08:15"_s), u"boarding pass.pdf"_s, u"Downloads"_s, u"Travel"_s,
              u"Trips"_s),
        entry(at(u"2026-05-22 22:40"_s), u"Holiday Itinerary.docx"_s, u"Downloads"_s, u"Travel"_s,
              u"Trips"_s),
        entry(at(u"2026-05-22 09:30"_s), u"Reçu Café.pdf"_s, u"Downloads"_s, u"File receipts"_s,
              u"Receipts"_s),
        entry(at(u"2026-05-21 10:00"_s), u"Setup.dmg"_s, u"Downloads"_s, u"Keep installers"_s,
              u"Apps"_s),
        entry(at(u"2026-05-18 16:45"_s), u"thesis_final_v3.docx"_s, u"Desktop"_s, u"Study"_s,
              u"University"_s),
        entry(at(u"2026-05-13 18:20"_s), u"Setup 2.dmg"_s, u"Downloads"_s, u"Old installers"_s,
              u"Trash"_s),
        entry(at(u"2026-05-02 07:00"_s), u"BankStatement-April.pdf"_s, u"Downloads"_s, u"Money"_s,
              u"Bank"_s),
        entry(at(u"2026-04-30 23:59"_s), u"rent.pdf"_s, u"Downloads"_s, u"Money"_s, u"Flat"_s),
        entry(at(u"2026-03-29 03:30"_s), u"wedding-photos.zip"_s, u"Camera"_s, u"Family"_s,
              u"Wedding"_s),
        entry(at(u"2026-03-12 11:00"_s), u"tax-return-2025.pdf"_s, u"Downloads"_s, u"Money"_s,
              u"Taxes"_s),
        entry(at(u"2026-03-01 00:10"_s), u"Überweisung.pdf"_s, u"Downloads"_s, u"Money"_s,
              u"Bank"_s),
        entry(at(u"2026-02-28 23:50"_s), u"請求書 五月.pdf"_s, u"Downloads"_s, u"Money"_s,
              u"Bank"_s),
        entry(at(u"2026-02-20 12:00"_s), u"README"_s, u"Desktop"_s, u"Code"_s, u"Projects"_s),
    };
    for (int i = 0; log.size() < 400; ++i) {
        const Filler& filler = fillers[std::size_t(i) % fillers.size()];
        log.push_back(entry(now().addSecs(-60 * (100 + 370 * i)), filler.file.arg(1000 + i),
                            filler.folder, filler.rule, filler.target));
    }
    std::ranges::sort(log, std::ranges::greater(), &LogEntry::date);
    return log;
}

struct Row {
    QString question;
    QStringList first;  ///< the names of those that come first
    QString from = {};  ///< when given, no chosen entry is older
    QString until = {}; ///< or as new as this
};

QStringList namesOf(const std::vector<LogEntry>& entries) {
    QStringList names;
    for (const LogEntry& entry : entries)
        names.append(entry.fileName);
    return names;
}

} // namespace

TEST(RelevantEntriesTest, ChoosesWhatAQuestionIsAbout) {
    const std::vector<LogEntry> log = madeLog();
    ASSERT_EQ(log.size(), 400U);
    const std::array<Row, 47> rows{{
        // By name.
        {u"Where did Setup.dmg go?"_s, {u"Setup.dmg"_s, u"Setup 2.dmg"_s}},
        {u"Why wasn't setup.DMG trashed?"_s, {u"Setup.dmg"_s, u"Setup 2.dmg"_s}},
        {u"why was “Setup 2.dmg” thrown away"_s, {u"Setup 2.dmg"_s}},
        {u"where is “holiday itinerary.docx”?"_s, {u"Holiday Itinerary.docx"_s}},
        {u"What about \"Screenshot 2026 at 1001.png\"?"_s, {u"Screenshot 2026 at 1001.png"_s}},
        {u"where's my recu cafe"_s, {u"Reçu Café.pdf"_s}},
        {u"Where is my bank statement?"_s, {u"BankStatement-April.pdf"_s}},
        {u"Where did the bank statements from April go?"_s, {u"BankStatement-April.pdf"_s}},
        {u"What happened to my thesis?"_s, {u"thesis_final_v3.docx"_s}},
        {u"uberweisung?"_s, {u"Überweisung.pdf"_s}},
        {u"U\u0308berweisung.PDF"_s, {u"Überweisung.pdf"_s}},
        {u"Where is 請求書?"_s, {u"請求書 五月.pdf"_s}},
        {u"where has the readme gone"_s, {u"README"_s}},
        {u"I can't find the photos of the wedding"_s, {u"wedding-photos.zip"_s}},
        {u"~/Downloads/boarding pass.pdf"_s, {u"boarding pass.pdf"_s}},
        {u"my holiday itineraries"_s, {u"Holiday Itinerary.docx"_s}},
        {u"where's meeting-notes-1039.docx"_s, {u"meeting-notes-1039.docx"_s}},
        // By rule, place, folder, kind and deed.
        {u"What has the rule Study done?"_s, {u"thesis_final_v3.docx"_s}},
        {u"anything about trips"_s, {u"boarding pass.pdf"_s, u"Holiday Itinerary.docx"_s}},
        {u"Did anything fail?"_s, {u"budget.xlsx"_s}},
        {u"what went wrong today"_s, {u"budget.xlsx"_s}, u"2026-05-23 00:00"_s},
        {u"Which receipts did you file?"_s, {u"Reçu Café.pdf"_s}},
        {u"Where did my latest download go?"_s, {u"budget.xlsx"_s}},
        {u"the latest invoice"_s, {u"Invoice_1000.pdf"_s, u"Invoice_1006.pdf"_s}},
        {u"my last 2 screenshots"_s,
         {u"Screenshot 2026 at 1001.png"_s, u"Screenshot 2026 at 1007.png"_s}},
        // By time alone.
        {u"What happened?"_s, {u"budget.xlsx"_s}},
        {u"What did you do today?"_s, {u"budget.xlsx"_s}, u"2026-05-23 00:00"_s},
        {u"What did you move this morning?"_s, {}, u"2026-05-23 00:00"_s, u"2026-05-23 12:00"_s},
        {u"what did you do an hour ago"_s,
         {u"budget.xlsx"_s},
         u"2026-05-23 13:29"_s,
         u"2026-05-23 14:31"_s},
        {u"What happened yesterday?"_s,
         {u"Holiday Itinerary.docx"_s},
         u"2026-05-22 00:00"_s,
         u"2026-05-23 00:00"_s},
        {u"yesterday morning"_s,
         {u"Reçu Café.pdf"_s},
         u"2026-05-22 00:00"_s,
         u"2026-05-22 12:00"_s},
        {u"What did you do last night?"_s, {}, u"2026-05-22 18:00"_s, u"2026-05-23 06:00"_s},
        {u"what happened this week"_s, {u"budget.xlsx"_s}, u"2026-05-18 00:00"_s},
        {u"And last week?"_s, {}, u"2026-05-11 00:00"_s, u"2026-05-18 00:00"_s},
        {u"what did you tidy on Thursday"_s, {}, u"2026-05-21 00:00"_s, u"2026-05-22 00:00"_s},
        {u"What happened 2 days ago?"_s, {}, u"2026-05-21 00:00"_s, u"2026-05-22 00:00"_s},
        {u"in March"_s, {}, u"2026-03-01 00:00"_s, u"2026-04-01 00:00"_s},
        {u"What did you do on 29 March?"_s, {}, u"2026-03-29 00:00"_s, u"2026-03-30 00:00"_s},
        {u"last month"_s, {u"rent.pdf"_s}, u"2026-04-01 00:00"_s, u"2026-05-01 00:00"_s},
        // By both.
        {u"Which setup did you file on Thursday?"_s, {u"Setup.dmg"_s}, u"2026-05-21 00:00"_s},
        {u"the tax return from 12 March"_s, {u"tax-return-2025.pdf"_s}, u"2026-03-12 00:00"_s},
        {u"Where did the thesis go yesterday?"_s, {u"thesis_final_v3.docx"_s}},
        {u"invoices since yesterday"_s, {u"Invoice_1000.pdf"_s}, u"2026-05-22 00:00"_s},
        {u"installers trashed last month"_s, {}, u"2026-04-01 00:00"_s, u"2026-05-01 00:00"_s},
        {u"money before 1 March"_s, {u"請求書 五月.pdf"_s}, {}, u"2026-03-01 00:00"_s},
        {u"money in March"_s, {u"tax-return-2025.pdf"_s, u"Überweisung.pdf"_s}},
        {u"podcasts between Monday and Wednesday"_s,
         {},
         u"2026-05-18 00:00"_s,
         u"2026-05-21 00:00"_s},
    }};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.question.toStdString());
        const auto chosen = relevantEntries(row.question, log, now(), 10).entries;
        EXPECT_EQ(namesOf(chosen).first(std::min(row.first.size(), qsizetype(chosen.size()))),
                  row.first)
            << namesOf(chosen).join(u", ").toStdString();
        EXPECT_FALSE(chosen.empty());
        EXPECT_LE(chosen.size(), 10U);
        for (const LogEntry& one : chosen) {
            const auto moment = QDateTime::fromMSecsSinceEpoch(
                one.date.time_since_epoch() / std::chrono::milliseconds(1), berlin());
            EXPECT_TRUE(row.from.isEmpty() || moment >= at(row.from))
                << moment.toString().toStdString();
            EXPECT_TRUE(row.until.isEmpty() || moment < at(row.until))
                << moment.toString().toStdString();
        }
    }
    for (const QString& question :
         {u"Where did unicorn.pdf go?"_s, u"Do you like porridge?"_s, u"what happened in 2019"_s,
          u"How do I undo something?"_s, u"zebra yesterday"_s})
        EXPECT_TRUE(relevantEntries(question, log, now(), 10).entries.empty())
            << question.toStdString();
    EXPECT_EQ(relevantEntries(u"downloads"_s, log, now(), 25).entries.size(), 25U);
    EXPECT_TRUE(relevantEntries(u"downloads"_s, log, now(), 0).entries.empty());
    EXPECT_TRUE(relevantEntries(u"downloads"_s, {}, now(), 25).entries.empty());
    EXPECT_EQ(relevantEntries(QString(), log, now(), 3).entries.size(), 3U);

    // More match than are chosen.
    const auto isOfToday = [](const LogEntry& one) {
        const auto since = at(u"2026-05-23 00:00"_s).toMSecsSinceEpoch();
        return one.date >= Timestamp(std::chrono::milliseconds(since));
    };
    const auto today = relevantEntries(u"How many files did you tidy today?"_s, log, now(), 2);
    EXPECT_EQ(today.entries.size(), 2U);
    EXPECT_EQ(today.matching, std::size_t(std::ranges::count_if(log, isOfToday)));
    EXPECT_EQ(relevantEntries(u"podcasts"_s, log, now(), 2).matching,
              relevantEntries(u"podcasts"_s, log, now(), 400).entries.size());
}

TEST(RelevantEntriesTest, ReadsTimesAsTheyAreMeantWhereTheClockStands) {
    struct TimeRow {
        QString question, now, from, until;
        QString zone = u"Europe/Berlin"_s;
    };
    const std::array<TimeRow, 28> rows{{
        // A day of 23 hours, one of 25, and one that starts at one o'clock.
        {u"today"_s, u"2026-03-29 12:00"_s, u"2026-03-28T23:00:00Z"_s, u"2026-03-29T22:00:00Z"_s},
        {u"yesterday"_s, u"2026-10-26 12:00"_s, u"2026-10-24T22:00:00Z"_s,
         u"2026-10-25T23:00:00Z"_s},
        {u"today"_s, u"2018-11-04 12:00"_s, u"2018-11-04T03:00:00Z"_s, u"2018-11-05T02:00:00Z"_s,
         u"America/Sao_Paulo"_s},
        {u"in the last hour"_s, u"2026-03-29 03:30"_s, u"2026-03-29T00:30:00Z"_s,
         u"2026-03-29T01:30:01Z"_s},
        {u"this morning"_s, u"2026-05-23 15:00"_s, u"2026-05-22T12:00:00Z"_s,
         u"2026-05-23T00:00:00Z"_s, u"Pacific/Auckland"_s},
        {u"this evening"_s, u"2026-05-23 15:00"_s, u"2026-05-23T15:00:00Z"_s,
         u"2026-05-23T22:00:00Z"_s},
        {u"last Saturday"_s, u"2026-05-23 15:00"_s, u"2026-05-15T22:00:00Z"_s,
         u"2026-05-16T22:00:00Z"_s},
        {u"on Friday evening"_s, u"2026-05-23 15:00"_s, u"2026-05-22T15:00:00Z"_s,
         u"2026-05-22T22:00:00Z"_s},
        {u"this weekend"_s, u"2026-05-23 15:00"_s, u"2026-05-22T22:00:00Z"_s,
         u"2026-05-24T22:00:00Z"_s},
        {u"at the weekend"_s, u"2026-05-20 15:00"_s, u"2026-05-15T22:00:00Z"_s,
         u"2026-05-17T22:00:00Z"_s},
        {u"last weekend"_s, u"2026-05-23 15:00"_s, u"2026-05-15T22:00:00Z"_s,
         u"2026-05-17T22:00:00Z"_s},
        {u"last month"_s, u"2026-03-31 15:00"_s, u"2026-01-31T23:00:00Z"_s,
         u"2026-02-28T23:00:00Z"_s},
        {u"last year"_s, u"2026-03-31 15:00"_s, u"2024-12-31T23:00:00Z"_s,
         u"2025-12-31T23:00:00Z"_s},
        {u"in June"_s, u"2026-05-23 15:00"_s, u"2025-05-31T22:00:00Z"_s, u"2025-06-30T22:00:00Z"_s},
        {u"last May"_s, u"2026-05-23 15:00"_s, u"2025-04-30T22:00:00Z"_s,
         u"2025-05-31T22:00:00Z"_s},
        {u"in March 2024"_s, u"2026-05-23 15:00"_s, u"2024-02-29T23:00:00Z"_s,
         u"2024-03-31T22:00:00Z"_s},
        {u"on 29 February"_s, u"2026-05-23 15:00"_s, u"2024-02-28T23:00:00Z"_s,
         u"2024-02-29T23:00:00Z"_s},
        {u"on December 24th"_s, u"2026-05-23 15:00"_s, u"2025-12-23T23:00:00Z"_s,
         u"2025-12-24T23:00:00Z"_s},
        {u"on the 12th"_s, u"2026-05-05 15:00"_s, u"2026-04-11T22:00:00Z"_s,
         u"2026-04-12T22:00:00Z"_s},
        {u"on 2026-05-01"_s, u"2026-05-23 15:00"_s, u"2026-04-30T22:00:00Z"_s,
         u"2026-05-01T22:00:00Z"_s},
        {u"on 24/12"_s, u"2026-05-23 15:00"_s, u"2025-12-23T23:00:00Z"_s,
         u"2025-12-24T23:00:00Z"_s},
        {u"on 01.05.2026."_s, u"2026-05-23 15:00"_s, u"2026-04-30T22:00:00Z"_s,
         u"2026-05-01T22:00:00Z"_s},
        {u"three weeks ago"_s, u"2026-05-23 15:00"_s, u"2026-04-26T22:00:00Z"_s,
         u"2026-05-03T22:00:00Z"_s},
        {u"in the past 3 days"_s, u"2026-05-23 15:00"_s, u"2026-05-19T22:00:00Z"_s,
         u"2026-05-23T13:00:01Z"_s},
        {u"a couple of days ago"_s, u"2026-05-23 15:00"_s, u"2026-05-19T22:00:00Z"_s,
         u"2026-05-22T22:00:00Z"_s},
        {u"yesterday at 15:30"_s, u"2026-05-23 15:00"_s, u"2026-05-22T12:30:00Z"_s,
         u"2026-05-22T14:30:00Z"_s},
        {u"yesterday afternoon at 3:30"_s, u"2026-05-23 15:00"_s, u"2026-05-22T12:30:00Z"_s,
         u"2026-05-22T14:30:00Z"_s},
        {u"last night at 2:00"_s, u"2026-05-23 15:00"_s, u"2026-05-22T23:00:00Z"_s,
         u"2026-05-23T01:00:00Z"_s},
    }};
    for (const TimeRow& row : rows) {
        SCOPED_TRACE(row.question.toStdString() + " on " + row.now.toStdString());
        const QDateTime local = QDateTime::fromString(row.now, u"yyyy-MM-dd HH:mm"_s);
        const QDateTime clock(local.date(), local.time(), QTimeZone(row.zone.toLatin1()));
        const auto span = timeInQuestion(questionWords(row.question), clock).span;
        ASSERT_TRUE(span && span->from && span->until);
        EXPECT_EQ(span->from->toUTC().toString(Qt::ISODate), row.from);
        EXPECT_EQ(span->until->toUTC().toString(Qt::ISODate), row.until);
    }
    for (const QString& question :
         {u"March report.pdf"_s, u"may I see it"_s, u"the sun"_s, u"on the 31st.pdf"_s, u"last"_s,
          u"version 12"_s, u"a day"_s, u"version 1.2.3"_s, u"24/7"_s.repeated(3), u"13/13"_s})
        EXPECT_FALSE(timeInQuestion(questionWords(question), now()).span) << question.toStdString();
}

} // namespace quillon

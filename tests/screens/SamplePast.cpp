#include "SamplePast.h"

#include "SampleFiles.h"

#include <QDate>

#include <algorithm>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Past {
    std::string home;
    const std::vector<WatchedFolder>& folders;
    Timestamp now;
    std::vector<LogEntry> entries = {};

    const WatchedFolder& folder(const QString& name) const {
        return *std::ranges::find(folders, name, &WatchedFolder::name);
    }
    LogEntry& add(std::chrono::seconds ago, const QString& folderName, const QString& file,
                  const QString& rule, const QString& summary) {
        const WatchedFolder& in = folder(folderName);
        return entries.emplace_back(LogEntry{.date = now - ago,
                                             .fileName = file,
                                             .ruleName = rule,
                                             .actionSummary = summary,
                                             .folderName = folderName,
                                             .folderID = in.id,
                                             .originalPath = in.path + u'/' + file,
                                             .currentPath = in.path + u'/' + file});
    }
    void moved(LogEntry& entry, const QString& current) const {
        entry.undoable = true;
        entry.currentPath = QString::fromStdString(home) + u'/' + current;
        makeFile(entry.currentPath->toStdString(), 150'000, 2);
    }
    void trashed(LogEntry& entry) const {
        moved(entry, u".local/share/Trash/files/"_s + entry.fileName);
        entry.trashedPath = entry.currentPath;
    }
};

/// Half past five yesterday, in local time.
std::chrono::seconds sinceYesterdayAfternoon(Timestamp now) {
    const QDateTime then(QDate::currentDate().addDays(-1), QTime(17, 24));
    return std::chrono::seconds(
        std::chrono::floor<std::chrono::seconds>(now.time_since_epoch()).count() -
        then.toSecsSinceEpoch());
}

void addCleanup(Past& past) {
    const std::chrono::seconds ago = sinceYesterdayAfternoon(past.now);
    const QUuid batch = QUuid::createUuid();
    const auto add = [&](const QString& file, const QString& rule,
                         const QString& summary) -> LogEntry& {
        LogEntry& entry = past.add(ago, u"Downloads"_s, file, rule, summary);
        entry.batchID = batch;
        return entry;
    };
    const auto installer = [&](const QString& file) {
        past.trashed(add(file, u"Trash old installers"_s, u"moved to Trash"_s));
    };
    const auto stale = [&](const QString& file) {
        past.moved(add(file, u"Set aside stale files"_s, u"moved to Old Files"_s),
                   u"Downloads/Old Files/"_s + file);
    };
    const auto screenshot = [&](const QString& file) {
        past.moved(add(file, u"File screenshots"_s, u"moved to Screenshots"_s),
                   u"Downloads/Screenshots/"_s + file);
    };
    installer(u"Blender-4.5.dmg"_s);
    stale(u"Lease draft v2.docx"_s);
    for (int i = 0; i < 11; ++i)
        screenshot(u"Screenshot %1.png"_s.arg(
            QDate::currentDate().addDays(-22 - i * 2).toString(Qt::ISODate)));
    for (const char* file : {"gimp-2.99.dmg", "Fonts.pkg", "rescue.iso"})
        installer(QString::fromUtf8(file));
    for (int i = 1; i <= 20; ++i)
        stale(u"Lecture %1.pdf"_s.arg(i));
}

} // namespace

std::vector<LogEntry> samplePast(const std::string& home, const std::vector<WatchedFolder>& folders,
                                 Timestamp now) {
    Past past{.home = home, .folders = folders, .now = now};
    past.moved(past.add(4min, u"Downloads"_s, u"Invoice-2026-1180 Northwind.pdf"_s,
                        u"File invoices"_s, u"moved to Receipts, tagged green"_s),
               u"Documents/Receipts/Invoice-2026-1180 Northwind.pdf"_s);
    past.moved(past.add(7min, u"Downloads"_s, u"scan_0031.pdf"_s, u"Name and file receipts"_s,
                        u"renamed to 2026-11-18 Amazon invoice £42.99.pdf, moved to Receipts"_s),
               u"Documents/Receipts/2026-11-18 Amazon invoice £42.99.pdf"_s);
    past.add(90min, u"Scans"_s, u"Scan 14 Nov.pdf"_s, u"File by month"_s,
             u"move failed: No space left on device"_s)
        .isError = true;
    past.add(103min, u"Desktop"_s, u"Screenshot 2026-11-19.png"_s, u"Tag screenshots"_s,
             u"tagged orange"_s);
    addCleanup(past);
    past.add(20h, u"Scans"_s, u"Scan 12 Nov.pdf"_s, u"File by month"_s,
             u"move failed: No space left on device"_s)
        .isError = true;
    for (int i = 0; i < 2; ++i)
        past.moved(past.add(50h + i * 26h, u"Downloads"_s, u"Invoice-2026-%1.pdf"_s.arg(1177 - i),
                            u"File invoices"_s, u"moved to Receipts, tagged green"_s),
                   u"Documents/Receipts/Invoice-2026-%1.pdf"_s.arg(1177 - i));
    std::ranges::stable_sort(past.entries, std::ranges::greater(), &LogEntry::date);
    return past.entries;
}

std::vector<ChatTurn> sampleChat(const std::vector<WatchedFolder>& folders,
                                 const std::vector<LogEntry>& past, Timestamp now) {
    const WatchedFolder& downloads = folders.front();
    const Rule& installers = downloads.rules.at(2);
    const DobbinAction turnOff{.kind = DobbinAction::Kind::turnOffRule,
                               .folderID = downloads.id,
                               .folderName = downloads.name(),
                               .ruleID = installers.id,
                               .ruleName = installers.name};
    const DobbinAction run{.kind = DobbinAction::Kind::runFolder,
                           .folderID = downloads.id,
                           .folderName = downloads.name(),
                           .done = true};
    return {
        {.isUser = true, .text = u"Where did the Northwind invoice go?"_s, .date = now - 3min},
        {.text = u"File invoices moved Invoice-2026-1180 Northwind.pdf to Receipts a moment ago "
                 u"and tagged it green."_s,
         .entries = {past.front()},
         .date = now - 3min},
        {.isUser = true, .text = u"Stop binning installers, please"_s, .date = now - 2min},
        {.text = u"Trash old installers in Downloads is the rule doing that. Turn it off, or run "
                 u"the folder now to see what is left."_s,
         .actions = {turnOff, run},
         .date = now - 2min,
         .wasShown = true},
    };
}

} // namespace quillon::testing

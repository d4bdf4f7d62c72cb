#include "store/Diagnostics.h"

#include "store/Support.h"
#include "support/PrintQt.h"
#include "support/SystemTimeZone.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;

const Timestamp afternoon{std::chrono::sys_days{std::chrono::year{2026} / 5 / 23} +
                          std::chrono::hours(13) + std::chrono::seconds(5)};

DiagnosticsSystem machine(QStringView name) {
    return {.appVersion = u"1.2"_s,
            .name = name.toString(),
            .version = u"Debian GNU/Linux 12 (bookworm)"_s,
            .now = afternoon,
            .locale = u"en_GB"_s};
}

TEST(Diagnostics, TellTheWholeStateInPlainText) {
    const SystemTimeZone zone("Europe/Berlin");
    Rule file;
    file.name = u"File\nPDFs"_s;
    file.conditions[0] = {
        .attribute = ConditionAttribute::extension, .op = MatchOperator::is, .value = u"pdf"_s};
    WatchedFolder downloads;
    downloads.path = u"/home/anna/Downloads"_s;
    downloads.rules = {file};
    WatchedFolder desktop;
    desktop.path = u"/home/anna/Desktop"_s;
    desktop.isRecursive = true;
    desktop.setTiming(TidyTiming::every6h);
    const LogEntry wrong{.date = afternoon - std::chrono::hours(24),
                         .fileName = u"a.pdf"_s,
                         .actionSummary = u"script failed: one\ntwo"_s,
                         .folderName = u"Downloads"_s,
                         .isError = true};
    LogEntry old = wrong;
    old.date -= std::chrono::seconds(1);
    EXPECT_EQ(diagnosticsReport({downloads, desktop}, {{downloads.id, FolderAccess::denied}},
                                {wrong, LogEntry{}, old}, {u"Desktop is polled"_s},
                                machine(systemName)),
              uR"(Quillon Diagnostics
Generated: 23 May 2026, 15:00:05
App version: 1.2
Linux: Debian GNU/Linux 12 (bookworm)

WATCHED FOLDERS (2)
Downloads (/home/anna/Downloads)
    watching=true access=DENIED — Linux is blocking access schedule=Off
    recursive=false onlyNewFiles=false skipOnlineOnly=false
    1. [on] File PDFs: If extension is “pdf” → Move to …
        Warning: “Move to folder” needs a destination folder.
Desktop (/home/anna/Desktop)
    watching=false access=not checked yet schedule=Every 6 hours
    recursive=true onlyNewFiles=false skipOnlineOnly=false
    (no rules)

WARNINGS (1)
Desktop is polled

ERRORS (last 24h: 1, showing up to 50 of 3 kept)
2026-05-22 15:00  Downloads/a.pdf: script failed: one two

ACTIVITY LOG: 3 entries kept (1 actions, 2 errors))"_s);

    const QString onMac = diagnosticsReport({downloads}, {{downloads.id, FolderAccess::denied}}, {},
                                            {}, machine(macName));
    EXPECT_TRUE(onMac.contains(u"\nmacOS: "_s));
    EXPECT_TRUE(onMac.contains(u"access=DENIED — macOS is blocking access "_s));
}

TEST(Diagnostics, CountEveryErrorAndListFifty) {
    const std::vector<LogEntry> logs(
        120, LogEntry{.date = afternoon, .fileName = u"x"_s, .isError = true});
    const QString report = diagnosticsReport({}, {}, logs, {}, machine(linuxName));
    EXPECT_TRUE(report.contains(u"\nWATCHED FOLDERS (0)\n\nERRORS (last 24h: 120, showing up to 50 "
                                u"of 120 kept)\n"_s));
    EXPECT_EQ(report.count(u"/x: "_s), 50);
}

TEST(Support, NamesTheVersionInTheSubject) {
    EXPECT_TRUE(mailtoURL(u"1.2&3"_s)
                    .endsWith(u"?subject=Quillon%201.2%263%20%E2%80%94%20support%20request"_s));
}

} // namespace
} // namespace quillon::testing

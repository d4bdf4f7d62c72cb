#include "store/JournalRecovery.h"
#include "store/UndoJournal.h"
#include "support/PrintQt.h"
#include "support/StoreBench.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillon::testing {
namespace {

namespace fs = std::filesystem;
using namespace Qt::Literals::StringLiterals;

LogEntry sampleEntry() {
    LogEntry entry;
    entry.date = FakeClock().now();
    entry.fileName = u"a “\"\\\n\t\u0001é 🗂”.txt"_s;
    entry.ruleName = u"Rule"_s;
    entry.folderName = u"Downloads"_s;
    entry.folderID = QUuid::createUuid();
    entry.originalPath = u"/in/a.txt"_s;
    entry.currentPath = u"/in/a.txt"_s;
    entry.batchID = QUuid::createUuid();
    return entry;
}

TEST(Journal, readsBackWhatWasWritten) {
    Intent intent{.entry = sampleEntry(), .status = {}, .targetFolders = {"/out", "/an \"other\""}};
    intent.status.device = 0xfedcba9876543210;
    intent.status.inode = 77;
    intent.status.size = 1ULL << 40;
    intent.status.modified = FakeClock().now() + std::chrono::nanoseconds(123456789);
    intent.status.created = FakeClock().now();
    LogEntry outcome = intent.entry;
    outcome.actionSummary = u"moved to out"_s;
    outcome.undoable = true;
    outcome.currentPath.reset();
    outcome.trashedPath = u"/trash/a.txt"_s;

    JsonStream json;
    writeJournalHeader(json, "tag1");
    writeIntent(json, {}, intent, false);
    const Intent second{.entry = sampleEntry(), .status = {}, .targetFolders = {}};
    writeIntent(json, {}, second, false);
    writeOutcome(json, {}, outcome);
    const QByteArray bytes = json.take();

    const JournalContents contents = readJournal(bytes);
    EXPECT_EQ(contents.temporaryTag, "tag1");
    EXPECT_EQ(contents.unreadableLines, 0u);
    ASSERT_EQ(contents.files.size(), 2u);
    EXPECT_TRUE(contents.files[0].hasOutcome);
    EXPECT_EQ(contents.files[0].intent.entry, outcome);
    EXPECT_EQ(contents.files[0].intent.status, intent.status);
    EXPECT_EQ(contents.files[0].intent.targetFolders, intent.targetFolders);
    EXPECT_FALSE(contents.files[1].hasOutcome);
    EXPECT_EQ(contents.files[1].intent.entry, second.entry);

    // However short it was cut, whole lines count and the cut one does no harm.
    for (qsizetype length = 0; length <= bytes.size(); ++length) {
        const JournalContents cut = readJournal(bytes.first(length));
        const auto wholeLines = std::size_t(bytes.first(length).count('\n'));
        EXPECT_EQ(cut.unreadableLines, 0u);
        EXPECT_GE(cut.files.size() + 2, wholeLines) << length;
    }
    EXPECT_EQ(readJournal("rubbish\n" + bytes).unreadableLines, 1u);
    EXPECT_EQ(readJournal("rubbish\n" + bytes).files.size(), 2u);
}

/// What happened to the file between the intent and the crash, and what recovery makes of it.
struct RecoveryCase {
    const char* name;
    void (*happens)(StoreBench& bench, Intent& intent, bool& hasOutcome);
    bool isLogged;
    const char* summary;
    const char* currentPath; ///< relative to the folder to tidy
    bool undoable;
    bool isError;
};

void moveFile(StoreBench& bench, const char* from, const char* to) {
    fs::create_directories(fs::path(bench.machine.at(to)).parent_path());
    fs::rename(bench.machine.at(from), bench.machine.at(to));
}

void setOutcome(StoreBench& bench, Intent& intent, bool& hasOutcome, const char* place) {
    hasOutcome = true;
    intent.entry.actionSummary = u"moved to One"_s;
    intent.entry.undoable = true;
    intent.entry.currentPath = QString::fromStdString(bench.machine.at(place));
}

const RecoveryCase recoveryCases[] = {
    {"killed before anything", [](StoreBench&, Intent&, bool&) {}, false, "", "", false, false},
    {"moved, not recorded",
     [](StoreBench& bench, Intent&, bool&) { moveFile(bench, "a.txt", "One/a.txt"); }, true,
     "moved to One, then interrupted", "One/a.txt", true, false},
    {"moved under another name while the old place was taken again",
     [](StoreBench& bench, Intent&, bool&) {
         moveFile(bench, "a.txt", "One/b 2.txt");
         bench.machine.write("a.txt", "a new download");
     },
     true, "moved to One, then interrupted", "One/b 2.txt", true, false},
    {"renamed in its folder, not recorded",
     [](StoreBench& bench, Intent&, bool&) { moveFile(bench, "a.txt", "z.txt"); }, true,
     "renamed to z.txt, then interrupted", "z.txt", true, false},
    {"moved and recorded",
     [](StoreBench& bench, Intent& intent, bool& hasOutcome) {
         moveFile(bench, "a.txt", "One/a.txt");
         setOutcome(bench, intent, hasOutcome, "One/a.txt");
     },
     true, "moved to One", "One/a.txt", true, false},
    {"moved and recorded, then moved on",
     [](StoreBench& bench, Intent& intent, bool& hasOutcome) {
         setOutcome(bench, intent, hasOutcome, "One/a.txt");
         moveFile(bench, "a.txt", "Two/a.txt");
     },
     true, "moved to One, moved to Two, then interrupted", "Two/a.txt", true, false},
    {"tagged and recorded, then nothing",
     [](StoreBench&, Intent& intent, bool& hasOutcome) {
         hasOutcome = true;
         intent.entry.actionSummary = u"tagged red"_s;
     },
     true, "tagged red", "a.txt", false, false},
    {"copied and recorded: the file is not where the entry's path is",
     [](StoreBench& bench, Intent& intent, bool& hasOutcome) {
         hasOutcome = true;
         intent.entry.actionSummary = u"copied to One"_s;
         intent.entry.currentPath = QString::fromStdString(bench.machine.at("One/a.txt"));
     },
     true, "copied to One", "One/a.txt", false, false},
    {"copied, not recorded",
     [](StoreBench& bench, Intent&, bool&) {
         ASSERT_TRUE(bench.machine.platform.fileSystem.copy(bench.machine.at("a.txt"),
                                                            bench.machine.at("One/a.txt")));
     },
     true, "copied to One, then interrupted", "One/a.txt", false, false},
    {"moved as between two mounts and then renamed, not recorded",
     [](StoreBench& bench, Intent&, bool&) {
         ASSERT_TRUE(bench.machine.platform.fileSystem.copy(bench.machine.at("a.txt"),
                                                            bench.machine.at("One/b.txt")));
         fs::remove(bench.machine.at("a.txt"));
     },
     true, "moved to One, then interrupted", "One/b.txt", true, false},
    {"thrown away, not recorded",
     [](StoreBench& bench, Intent&, bool&) {
         ASSERT_TRUE(bench.machine.platform.trash.put(bench.machine.at("a.txt")));
     },
     true, "moved to Trash, then interrupted", nullptr, true, false},
    {"gone altogether",
     [](StoreBench& bench, Intent&, bool&) { fs::remove(bench.machine.at("a.txt")); }, true,
     "interrupted: the file was not found again", "a.txt", false, true},
    {"replaced in place by an editor",
     [](StoreBench& bench, Intent&, bool&) {
         bench.machine.write("new", "edited");
         moveFile(bench, "new", "a.txt");
     },
     false, "", "", false, false},
};

TEST(JournalRecovery, findsWhatReallyHappened) {
    for (const RecoveryCase& c : recoveryCases) {
        SCOPED_TRACE(c.name);
        StoreBench bench;
        bench.machine.write("a.txt", "contents");
        bench.machine.makeFolder("One");
        bench.machine.makeFolder("Two");
        Intent intent = bench.intentFor(
            "a.txt", {bench.machine.at("One"), bench.machine.at("Two"), bench.machine.work()});
        JsonStream json;
        writeJournalHeader(json, "old");
        writeIntent(json, {}, intent, false);
        bool hasOutcome = false;
        c.happens(bench, intent, hasOutcome);
        if (hasOutcome)
            writeOutcome(json, {}, intent.entry);
        bench.machine.write(bench.places.journal(), json.take().toStdString());
        const std::string leftover = bench.machine.write("One/.quillon-old-1.part", "half");
        const std::string others = bench.machine.write("One/.quillon-other-1.part", "half");

        auto session = bench.open();
        ASSERT_TRUE(session);
        EXPECT_FALSE(fs::exists(leftover));
        EXPECT_TRUE(fs::exists(others));
        EXPECT_EQ(fs::file_size(bench.places.journal()), 0u);
        EXPECT_EQ(StateFile(bench.storage, bench.places.state()).read({})->logs,
                  session->state().logs);
        ASSERT_EQ(session->state().logs.size(), c.isLogged ? 1u : 0u);
        if (!c.isLogged)
            continue;
        const LogEntry& entry = session->state().logs[0];
        EXPECT_EQ(entry.id, intent.entry.id);
        EXPECT_EQ(entry.actionSummary, QString::fromUtf8(c.summary));
        EXPECT_EQ(entry.undoable, c.undoable);
        EXPECT_EQ(entry.isError, c.isError);
        if (c.currentPath) {
            EXPECT_EQ(entry.currentPath, QString::fromStdString(bench.machine.at(c.currentPath)));
        } else {
            EXPECT_FALSE(entry.currentPath);
            ASSERT_TRUE(entry.trashedPath);
            EXPECT_EQ(bench.machine.contents(entry.trashedPath->toStdString()), "contents");
        }
    }
}

TEST(JournalRecovery, addsNothingWhenTheStateWasSavedBeforeTheJournalWasCleared) {
    StoreBench bench;
    bench.machine.write("a.txt", "contents");
    bench.machine.write("b.txt", "contents");
    JsonStream json;
    const Intent saved = bench.intentFor("a.txt", {});
    const Intent pastTheCap = bench.intentFor("b.txt", {});
    for (Intent intent : {saved, pastTheCap}) {
        writeIntent(json, {}, intent, false);
        intent.entry.actionSummary = u"tagged red"_s;
        writeOutcome(json, {}, intent.entry);
    }
    const std::vector<LogEntry> logs{saved.entry};
    EXPECT_TRUE(recoveredEntries(readJournal(json.take()), logs, bench.services.fileSystem,
                                 bench.services.trashPlaces)
                    .empty());
}

TEST(UndoJournal, isReadableAtEveryMomentAndEmptyOnceSaved) {
    StoreBench bench;
    bench.machine.write("a.txt", "contents");
    Intent intent = bench.intentFor("a.txt", {});
    const auto journalled = [&] {
        return readJournal(
            QByteArray::fromStdString(bench.machine.contents(bench.places.journal())));
    };
    auto session = bench.open();
    auto run = session->journal().beginRun();
    ASSERT_TRUE(run->intend({&intent, 1}));
    ASSERT_EQ(journalled().files.size(), 1u);
    EXPECT_EQ(journalled().temporaryTag, "ours");
    EXPECT_FALSE(journalled().files[0].hasOutcome);
    intent.entry.actionSummary = u"tagged red"_s;
    run->record(intent.entry);
    EXPECT_EQ(journalled().files[0].intent.entry, intent.entry);
    session->state().addLogs({intent.entry});
    run.reset();
    ASSERT_TRUE(session->save());
    EXPECT_TRUE(journalled().files.empty());
    run = session->journal().beginRun();
    ASSERT_TRUE(run->intend({&intent, 1}));
    EXPECT_EQ(journalled().temporaryTag, "ours");
}

TEST(UndoJournal, forgetsOnlyTheRunsThatAreSaved) {
    StoreBench bench;
    const auto journalled = [&] {
        QStringList names;
        const std::string bytes = bench.machine.contents(bench.places.journal());
        for (const JournalledFile& file : readJournal(QByteArray::fromStdString(bytes)).files)
            names.append(file.intent.entry.fileName);
        return names;
    };
    const auto session = bench.open();
    UndoJournal& journal = session->journal();
    const auto begin = [&](const char* name) {
        bench.machine.write(name, "contents");
        const Intent intent = bench.intentFor(name, {});
        auto run = journal.beginRun();
        EXPECT_TRUE(run->intend({&intent, 1}));
        return run;
    };
    auto first = begin("a");
    auto second = begin("b");
    first.reset();
    EXPECT_EQ(journalled(), (QStringList{u"a"_s, u"b"_s}));
    ASSERT_TRUE(journal.markSaved());
    EXPECT_EQ(journalled(), QStringList{u"b"_s});
    auto third = begin("c");
    second.reset();
    EXPECT_EQ(journalled(), (QStringList{u"b"_s, u"c"_s}));
    third.reset();
    ASSERT_TRUE(journal.markSaved());
    EXPECT_EQ(fs::file_size(bench.places.journal()), 0u);
}

TEST(StoreView, takesAJournalInOnlyWhenNobodyIsWritingIt) {
    StoreBench bench;
    bench.machine.write("a.txt", "contents");
    const Intent intent = bench.intentFor("a.txt", {bench.machine.makeFolder("One")});
    {
        auto running = bench.open();
        ASSERT_TRUE(running->journal().beginRun()->intend({&intent, 1}));
        moveFile(bench, "a.txt", "One/a.txt");
        EXPECT_TRUE(viewStore(bench.places, bench.services)->state.logs.empty());
    }
    EXPECT_EQ(viewStore(bench.places, bench.services)->state.logs.size(), 1u);
}

} // namespace
} // namespace quillon::testing

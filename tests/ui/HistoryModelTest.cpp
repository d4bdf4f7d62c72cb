#include "ui/history/HistoryModel.h"

#include "model/Uuid.h"
#include "store/PersistedState.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"
#include "support/SystemTimeZone.h"

#include <gmock/gmock.h>

#include <fstream>
#include <ranges>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;

/// What a view knows of a list when it is told of nothing but its changes.
struct View {
    QStringList keys;
    int resets = 0;

    explicit View(const QAbstractItemModel& model) {
        const auto keyAt = [&model](int row) {
            return model.data(model.index(row, 0), Qt::UserRole).toString();
        };
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                         [this, keyAt](const QModelIndex&, int first, int last) {
                             for (int row = first; row <= last; ++row)
                                 keys.insert(row, keyAt(row));
                         });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model,
                         [this](const QModelIndex&, int first, int last) {
                             keys.remove(first, last - first + 1);
                         });
        QObject::connect(&model, &QAbstractItemModel::rowsMoved, &model,
                         [this](const QModelIndex&, int first, int, const QModelIndex&, int to) {
                             keys.move(first, to);
                         });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [this] { ++resets; });
    }
};

TEST(KeyedRowsTest, TellsAViewWhatBecameOfEveryRow) {
    KeyedRows<HistoryRow> model;
    const View view(model);
    for (const QString& keys : {u"abcdef"_s, u"bcxyde"_s, u"edcba"_s, u"e"_s, u"pqerst"_s, u""_s}) {
        std::vector<HistoryRow> rows;
        for (const QChar key : keys)
            rows.push_back({.key = QString(key), .title = keys});
        model.setRows(rows);
        EXPECT_EQ(view.keys.join(QString()), keys);
        EXPECT_EQ(model.rows(), rows);
    }
    EXPECT_EQ(view.resets, 0);
}

/// A folder in which a file was filed an hour ago and one failed, and a clean-up of yesterday.
struct HistoryModelTest : ::testing::Test {
    SystemTimeZone zone{"UTC"};
    AppStoreBench bench;
    Sheets sheets;
    Toasts toasts;
    QUuid folder = bench.addFolder("in");
    QUuid otherFolder = bench.addFolder("other");
    QUuid batch = QUuid::createUuid();
    std::unique_ptr<HistoryModel> model;

    LogEntry entry(const QString& file, const QString& rule, std::chrono::seconds ago) {
        bench.disk.machine.write("out/" + file.toStdString(), "text");
        return {.date = bench.clock.now() + 12h - ago,
                .fileName = file,
                .ruleName = rule,
                .actionSummary = u"moved to out"_s,
                .folderName = u"in"_s,
                .folderID = folder,
                .undoable = true,
                .originalPath = bench.path("in/" + file.toStdString()),
                .currentPath = bench.path("out/" + file.toStdString())};
    }

    void SetUp() override {
        bench.store->setTiming(TidyTiming::manual, folder);
        PersistedState state;
        state.folders = bench.store->folders();
        state.logs.push_back(entry(u"Bill.pdf"_s, u"File bills"_s, 1h));
        LogEntry failed = entry(u"Scan.pdf"_s, u"File scans"_s, 2h);
        failed.isError = true;
        failed.undoable = false;
        state.logs.push_back(failed);
        for (const char* file : {"a.dmg", "b.dmg", "c.png"}) {
            LogEntry cleaned = entry(QString::fromLatin1(file),
                                     file == std::string("c.png") ? u"File screenshots"_s
                                                                  : u"Trash old installers"_s,
                                     20h);
            cleaned.batchID = batch;
            state.logs.push_back(cleaned);
        }
        bench.store.reset();
        const QByteArray bytes = encodeState(state);
        std::ofstream(bench.disk.places.state(), std::ios::binary)
            .write(bytes.constData(), bytes.size());
        bench.clock.advance(12h);
        bench.start();
        model = std::make_unique<HistoryModel>(
            HistoryModel::Surroundings{.store = *bench.store,
                                       .clock = bench.clock,
                                       .background = bench.background,
                                       .sheets = sheets,
                                       .toasts = toasts});
    }

    QStringList titles() const {
        QStringList all;
        for (const HistoryRow& row : model->rows())
            all.append((row.isInBatch ? u"  "_s : QString()) + row.title);
        return all;
    }
    const HistoryRow& head() const { return *model->row(batchKey(batch)); }
};

TEST_F(HistoryModelTest, ShowsTheLogByDayAndBatchWhileItsSheetIsOpen) {
    EXPECT_EQ(model->rowCount(), 0);
    model->open();
    EXPECT_EQ(sheets.current(), u"HistorySheet"_s);
    EXPECT_EQ(titles(), QStringList({u"Bill.pdf"_s, u"Scan.pdf"_s, u"Clean Up in in"_s}));
    EXPECT_EQ(head().secondLine, u"3 files · Old installers, Screenshots"_s);
    EXPECT_EQ(model->rows()[0].secondLine, u"File bills · moved to out"_s);
    EXPECT_FALSE(model->rows()[1].canUndo);
    EXPECT_TRUE(model->rows()[1].isLast && head().isFirst);
    const QVariantMap yesterday = model->days()[head().day].toMap();
    EXPECT_EQ(yesterday[u"heading"_s], u"Yesterday"_s);
    EXPECT_EQ(yesterday[u"count"_s], u"3 entries"_s);

    model->setOpen(head().key, true);
    EXPECT_EQ(titles().mid(2),
              QStringList({u"Clean Up in in"_s, u"  a.dmg"_s, u"  b.dmg"_s, u"  c.png"_s}));
    EXPECT_EQ(model->headOf(4), 2);
    bench.pass(12h + 1min);
    EXPECT_EQ(model->days()[model->rows()[0].day].toMap()[u"heading"_s], u"Yesterday"_s)
        << "called today on the next day";
    sheets.close();
    EXPECT_EQ(model->rowCount(), 0);
}

TEST_F(HistoryModelTest, FindsEntriesByWhatTheyTell) {
    struct Case {
        QString words;
        QStringList titles;
    };
    const Case cases[] = {
        {u"  "_s, {u"Bill.pdf"_s, u"Scan.pdf"_s, u"Clean Up in in"_s}},
        {u"BILL"_s, {u"Bill.pdf"_s}},
        {u"file scan"_s, {u"Scan.pdf"_s}}, // not the screenshot, which is no scan
        {u"installers"_s, {u"Clean Up in in"_s, u"  a.dmg"_s, u"  b.dmg"_s}},
        {u"nothing"_s, {}},
    };
    model->open();
    for (const Case& each : cases) {
        model->setSearchText(each.words);
        EXPECT_EQ(titles(), each.titles) << each.words.toStdString();
    }
    model->openErrors(uuidText(folder));
    EXPECT_EQ(titles(), QStringList{u"Scan.pdf"_s});
    EXPECT_EQ(model->errorCount(), u"1"_s);
    model->setFolderIndex(2);
    EXPECT_EQ(titles(), QStringList());
    EXPECT_EQ(model->errorCount(), QString());
    model->clearFilter();
    EXPECT_EQ(titles().size(), 3);
}

TEST_F(HistoryModelTest, KeepsItsRowsWhenSomethingIsFiledMeanwhile) {
    model->open();
    model->setOpen(head().key, true);
    const QStringList before = titles();
    const View view(*model);
    bench.disk.machine.write("in/new.txt", "new");
    bench.addRule(bench.mover(u"txt"_s, "texts"), folder);
    bench.pass(10s);
    bench.background.finish();
    EXPECT_EQ(titles(), QStringList{u"new.txt"_s} + before);
    EXPECT_EQ(view.keys.size(), 1) << "more than the new row came";
    EXPECT_FALSE(model->rows()[1].isFirst);
}

TEST_F(HistoryModelTest, TakesABatchBackAndSaysWhatCameOfIt) {
    std::filesystem::remove(bench.disk.machine.at("out/b.dmg"));
    model->open();
    model->undoBatch(head().key);
    EXPECT_TRUE(head().isUndoing);
    EXPECT_EQ(head().secondLine, u"Putting back… 0 of 3 files"_s);
    bench.background.finish();
    EXPECT_EQ(toasts.sentence(), u"Put back 2 files, 1 couldn’t be"_s);
    EXPECT_EQ(bench.disk.machine.contents("in/a.dmg"), "text");
    // One entry is no batch any more.
    EXPECT_EQ(titles(), QStringList({u"Bill.pdf"_s, u"Scan.pdf"_s, u"b.dmg"_s}));
    EXPECT_FALSE(model->rows().back().isUndoing);
}

TEST_F(HistoryModelTest, StopsTakingBackWhenAsked) {
    model->open();
    model->undoBatch(head().key);
    model->stopUndo(head().key);
    bench.background.finish();
    EXPECT_FALSE(head().isUndoing);
    EXPECT_EQ(bench.store->recentLogs().size(), 5U);
}

} // namespace
} // namespace quillon::testing

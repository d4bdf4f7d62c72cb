#include "ui/review/PreviewModel.h"

#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

struct AskedOfBins final : FakeJudge {
    bool isWaiting(const std::string& path) override { return path.ends_with(".bin"); }
};

struct PreviewModelTest : ::testing::Test {
    AppStoreBench bench;
    Sheets sheets;
    PreviewModel model{{.store = *bench.store,
                        .platform = bench.platform,
                        .background = bench.background,
                        .timers = bench.timers,
                        .sheets = sheets,
                        .makeJudge = [] { return std::make_unique<AskedOfBins>(); }}};
    QUuid folder = bench.addFolder("in");

    PreviewModelTest() { bench.store->setTiming(TidyTiming::manual, folder); }

    void make(const std::string& name) {
        bench.disk.machine.write("in/" + name, "x");
        bench.touch("in/" + name, bench.clock.now() - 1h);
    }
    [[nodiscard]] bool isThere(const std::string& name) const {
        return std::filesystem::exists(bench.disk.machine.at(name));
    }
    /// "a.pdf: 2 Move pdf, Move to pdfs"
    [[nodiscard]] QStringList rows() const {
        const auto names = model.roleNames();
        QStringList texts;
        for (int i = 0; i < model.rowCount(); ++i) {
            const auto get = [&](const char* role) {
                return model.data(model.index(i), names.key(role)).toString();
            };
            texts.append(u"%1: %2 %3, %4"_s.arg(get("fileName"), get("ruleNumber"), get("ruleName"),
                                                get("firstAction")));
        }
        return texts;
    }
};

TEST_F(PreviewModelTest, TellsWhatARunWouldDoAndTouchesNothing) {
    for (const char* name : {"a.pdf", "b.pdf", "c.txt", "d.bin"})
        make(name);
    Rule off = bench.mover(u"pdf"_s, "nowhere");
    off.isEnabled = false;
    Rule asks = bench.mover(u"bin"_s, "bins");
    asks.conditions.push_back({.attribute = ConditionAttribute::dobbinSays,
                               .op = MatchOperator::is,
                               .value = u"a receipt"_s});
    const auto before = bench.store->folder(folder);
    ASSERT_TRUE(before);
    std::vector<WatchedFolder> folders = bench.store->folders();
    folders.back().rules = {off, bench.mover(u"pdf"_s, "pdfs"), asks};
    bench.store->setFolders(folders);
    model.open(uuidText(folder));
    bench.background.finish();
    EXPECT_EQ(model.fates(),
              QStringList({u"Would change 2"_s, u"Left alone 1"_s, u"Waiting for Dobbin 1"_s}));
    EXPECT_EQ(rows(), QStringList({u"a.pdf: 2 Move pdf, Move to pdfs"_s,
                                   u"b.pdf: 2 Move pdf, Move to pdfs"_s}))
        << "numbered by its place, with the rule that is off";
    const std::pair<QString, qsizetype> filters[] = {
        {u"B.PDF"_s, 1}, {u"move to"_s, 2}, {u"move pdf"_s, 2}, {u"c.txt"_s, 0}};
    for (const auto& [words, size] : filters) {
        model.setFilterText(words);
        bench.background.finish();
        EXPECT_EQ(rows().size(), size) << words.toStdString();
    }
    EXPECT_EQ(model.emptyText(), u"No files match."_s);
    model.setFilterText({});
    model.setFate(2);
    EXPECT_EQ(rows(), QStringList{u"d.bin:  , "_s});
    EXPECT_TRUE(isThere("in/a.pdf"));
    EXPECT_TRUE(bench.store->recentLogs().empty());

    bench.store->setOnlyNewFiles(true, folder);
    bench.background.finish();
    model.look();
    bench.background.finish();
    EXPECT_FALSE(model.canRun()) << "a folder for new files leaves alone what was there";
}

TEST_F(PreviewModelTest, SaysWhyThereIsNothing) {
    model.open(uuidText(folder));
    EXPECT_FALSE(model.isLooking()) << "said of work that may end in a moment";
    bench.timers.advance(300ms);
    EXPECT_TRUE(model.isLooking());
    bench.background.finish();
    EXPECT_EQ(model.emptyText(), u"Nothing would change. There are no files to check in in."_s);
    make("one.txt");
    model.look();
    bench.background.finish();
    EXPECT_EQ(model.emptyText(), u"Nothing would change. No rule matches this file."_s);
    make("two.txt");
    model.look();
    bench.background.finish();
    EXPECT_EQ(model.emptyText(), u"Nothing would change. No rule matches these 2 files."_s);
    EXPECT_FALSE(model.canRun());

    std::filesystem::remove_all(bench.disk.machine.at("in"));
    model.look();
    bench.timers.advance(300ms);
    EXPECT_EQ(model.lookingText(), u"Checking 2 files…"_s);
    bench.background.finish();
    EXPECT_TRUE(model.hasFailed());
    bench.store->refreshAccess();
    bench.background.finish();
    EXPECT_EQ(model.whyNotRun(), u"in can’t be found"_s);
}

TEST_F(PreviewModelTest, GivesUpWhenItsSheetGoes) {
    make("one.txt");
    bench.addRule(bench.mover(u"txt"_s, "texts"), folder);
    make("two.txt");
    model.open(uuidText(folder));
    sheets.close();
    bench.background.finish();
    bench.timers.advance(1s);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.canRun());
    EXPECT_FALSE(model.isLooking());
}

} // namespace
} // namespace quillon::testing

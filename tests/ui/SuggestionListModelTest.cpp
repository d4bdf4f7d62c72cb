#include "ui/review/SuggestionListModel.h"

#include "assistant/DobbinJudge.h"
#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/PrintQt.h"
#include "ui/review/PresetListModel.h"

#include <gtest/gtest.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

struct SuggestionListModelTest : ::testing::Test {
    AppStoreBench bench;
    Toasts toasts;
    DobbinJudge judge{bench.platform.fileSystem, bench.clock};
    SuggestionMemory memory{bench.disk.storage, bench.platform.fileSystem, bench.disk.places};
    FolderSuggestions search{
        bench.platform,   judge,
        memory,           bench.settings,
        bench.background, []() -> ModelAccess& { std::abort(); }}; // screenshots have a name
    SuggestionListModel model{{.store = *bench.store,
                               .clock = bench.clock,
                               .background = bench.background,
                               .timers = bench.timers,
                               .toasts = toasts,
                               .memory = memory,
                               .suggestions = [this]() -> FolderSuggestions& { return search; }}};
    QUuid folder = bench.addFolder("in");

    SuggestionListModelTest() {
        for (int i = 0; i < 4; ++i) {
            const std::string name = "in/Screenshot 2026-01-0" + std::to_string(i + 1) + ".png";
            bench.disk.machine.write(name, "x");
            bench.touch(name, bench.clock.now() - 48h);
        }
        bench.store->setSelectedFolderID(folder);
        settle();
    }
    [[nodiscard]] bool isThere(const std::string& name) const {
        return std::filesystem::exists(bench.disk.machine.at(name));
    }
    void settle() {
        bench.timers.advance(1s);
        bench.background.finish();
    }
};

TEST_F(SuggestionListModelTest, AddsARuleAndTakesItBackWithWhatItDid) {
    ASSERT_EQ(model.count(), 1);
    EXPECT_EQ(model.rows().front().title, u"File screenshots"_s);
    EXPECT_TRUE(model.rows().front().reason.startsWith(u"4 screenshots"));
    model.add(model.rows().front().key);
    bench.background.finish();
    EXPECT_TRUE(isThere("in/Screenshots/Screenshot 2026-01-01.png"));
    settle();
    EXPECT_EQ(model.count(), 0) << "offered though the folder has it";
    EXPECT_EQ(toasts.sentence(), u"“File screenshots” added"_s);
    Rule namesake = bench.mover(u"pdf"_s, "out");
    namesake.name = u"File screenshots"_s;
    bench.disk.machine.write("in/a.pdf", "x");
    bench.touch("in/a.pdf", bench.clock.now() - 48h);
    bench.addRule(namesake, folder);
    ASSERT_TRUE(isThere("out/a.pdf"));

    const std::string late = "Screenshot 2026-01-09.png";
    bench.disk.machine.write("in/" + late, "x");
    bench.touch("in/" + late, bench.clock.now() - 48h);
    bench.store->runRules(folder);
    toasts.act();
    bench.background.finish();
    EXPECT_TRUE(isThere("in/" + late)) << "filed by a run that was under way";
    EXPECT_TRUE(isThere("out/a.pdf")) << "another rule of the same name did that";
    EXPECT_EQ(bench.store->folder(folder)->rules, std::vector{namesake});
    EXPECT_TRUE(isThere("in/Screenshot 2026-01-01.png"));
    settle();
    EXPECT_EQ(model.count(), 1);
}

TEST_F(SuggestionListModelTest, OffersNothingThatIsNotWanted) {
    model.dismiss(model.rows().front().key);
    EXPECT_EQ(model.count(), 0);
    settle();
    model.refresh();
    settle();
    EXPECT_EQ(model.count(), 0) << "forgot that it was dismissed";
}

TEST_F(SuggestionListModelTest, OffersNothingOnceSwitchedOffOrForAnotherFolder) {
    bench.store->setSelectedFolderID(std::nullopt);
    EXPECT_EQ(model.count(), 0);
    bench.store->setSelectedFolderID(folder);
    settle();
    EXPECT_EQ(model.count(), 1);
    bench.settings.values.insert(u"ai.suggestRules"_s, u"false"_s);
    model.setWanted(false);
    settle();
    EXPECT_EQ(model.count(), 0);
}

TEST(PresetListModelTest, KnowsWhatTheFolderHas) {
    AppStoreBench bench;
    Sheets sheets;
    PresetListModel model(*bench.store, sheets);
    const QUuid folder = bench.addFolder("in");
    model.open(uuidText(folder));
    EXPECT_EQ(sheets.current(), u"PresetsSheet"_s);
    ASSERT_EQ(model.rowCount(), 6);
    model.add(u"Sort by month"_s);
    model.add(u"Sort by month"_s);
    ASSERT_EQ(bench.store->folder(folder)->rules.size(), 1U);
    for (const PresetRow& row : model.rows())
        EXPECT_EQ(row.isAdded, row.key == u"Sort by month"_s) << row.key.toStdString();
}

} // namespace
} // namespace quillon::testing

#include "ui/review/CleanupModel.h"

#include "model/Uuid.h"
#include "support/AppStoreBench.h"
#include "support/FakeDesktop.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::testing {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// The recipes of a folder that isn't a desktop.
enum Recipe { installers, stale, screenshots, archives, byKind };

struct CleanupModelTest : ::testing::Test {
    AppStoreBench bench;
    FakeDesktop desktop;
    Sheets sheets;
    Toasts toasts;
    CleanupModel model{{.store = *bench.store,
                        .platform = bench.platform,
                        .background = bench.background,
                        .timers = bench.timers,
                        .fileManager = desktop,
                        .sheets = sheets,
                        .toasts = toasts,
                        .makeJudge = [] { return std::make_unique<FakeJudge>(); }}};
    QUuid folder = bench.addFolder("in");

    CleanupModelTest() { bench.store->setTiming(TidyTiming::manual, folder); }

    void make(const std::string& name, int daysAgo) {
        bench.disk.machine.write("in/" + name, "12345");
        const auto then =
            std::chrono::floor<std::chrono::seconds>(bench.clock.now()) - daysAgo * 24h;
        const timespec time{.tv_sec = std::chrono::system_clock::to_time_t(then), .tv_nsec = 0};
        const timespec both[] = {time, time};
        ASSERT_EQ(::utimensat(AT_FDCWD, bench.disk.machine.at("in/" + name).c_str(), both, 0), 0);
    }
    [[nodiscard]] bool isThere(const std::string& name) const {
        return std::filesystem::exists(bench.disk.machine.at(name));
    }
    void open() {
        model.open(uuidText(folder));
        bench.background.finish();
    }
    /// "[x] Old installers", "  [ ] a.dmg": heads and files as they stand, with [-] for some.
    [[nodiscard]] QStringList rows() const {
        const CleanupFileModel& files = model.fileRows();
        const auto names = files.roleNames();
        const auto get = [&](int row, const char* role) {
            return files.data(files.index(row), names.key(role));
        };
        QStringList texts;
        for (int i = 0; i < files.rowCount(); ++i)
            texts.append((get(i, "isHead").toBool() ? u"["_s : u"  ["_s) +
                         u" -x"_s.at(get(i, "tick").toInt()) + u"] "_s +
                         get(i, "title").toString());
        return texts;
    }
    [[nodiscard]] QString count(Recipe recipe) const {
        return model.recipeRows().rows().at(std::size_t(recipe)).countText;
    }
};

TEST_F(CleanupModelTest, GivesEachFileToTheFirstTickedRecipeAndTidiesWhatIsTickedAlone) {
    make("old.dmg", 40);
    make("older.iso", 50);
    make("notes.txt", 60);
    make("keep.txt", 70);
    make("bundle.zip", 10);
    make("Screenshot 1.png", 1);
    make("new.dmg", 2);
    bench.disk.machine.makeFolder("in/Screenshots"); // which matches, and is where they go
    open();
    EXPECT_EQ(rows(),
              QStringList({u"[x] Old installers"_s, u"  [x] old.dmg"_s, u"  [x] older.iso"_s,
                           u"[x] Stale files"_s, u"  [x] notes.txt"_s, u"  [x] keep.txt"_s,
                           u"[x] Screenshots"_s, u"  [x] Screenshot 1.png"_s}));
    EXPECT_EQ(count(archives), u"1 file"_s);
    EXPECT_EQ(count(byKind), u"2 files"_s) << "the archive, which nobody else takes, and new.dmg";
    EXPECT_EQ(model.tickedText(), u"5 files ticked · 25 bytes"_s);

    model.chooseRecipe(installers, false);
    EXPECT_EQ(count(stale), u"4 files"_s) << "what one recipe leaves the next one takes";
    model.chooseRecipe(installers, true);
    model.chooseRecipe(archives, true);
    EXPECT_EQ(model.noteText(), u"Unpacking archives can’t be undone."_s);
    model.chooseRecipe(archives, false);

    model.tickRow(5, false);
    EXPECT_EQ(rows().at(3), u"[-] Stale files"_s);
    EXPECT_TRUE(isThere("in/old.dmg")) << "nothing moves before it is asked for";
    model.tidy();
    EXPECT_EQ(model.state(), u"tidying"_s);
    bench.background.finish();
    ASSERT_EQ(model.state(), u"result"_s);
    EXPECT_EQ(model.resultTitle(), u"in is tidy"_s);
    EXPECT_EQ(model.resultText(), u"4 files filed."_s);
    QStringList told;
    for (const CleanupResultRow& row : model.result().rows)
        told.append(row.title + u": "_s + row.text);
    EXPECT_EQ(told, QStringList({u"Old installers: 2 moved to Trash"_s,
                                 u"Stale files: 1 moved to Old Files"_s,
                                 u"Screenshots: 1 moved to Screenshots"_s}));
    for (const char* left : {"in/keep.txt", "in/bundle.zip", "in/new.dmg", "in/Old Files/notes.txt",
                             "in/Screenshots/Screenshot 1.png"})
        EXPECT_TRUE(isThere(left)) << left;

    model.undo();
    EXPECT_EQ(model.state(), u"undoing"_s);
    bench.background.finish();
    EXPECT_EQ(toasts.sentence(), u"Put back 4 files"_s);
    EXPECT_EQ(sheets.current(), QString());
    EXPECT_TRUE(isThere("in/old.dmg"));
}

TEST_F(CleanupModelTest, KeepsUntickedFilesWhileDaysAreStepped) {
    for (const auto& [name, days] : {std::pair("a.txt", 35), {"b.txt", 45}, {"c.txt", 55}})
        make(name, days);
    open();
    model.tickRow(2, false); // b.txt
    model.setDays(stale, 40);
    model.setDays(stale, 50);
    model.setDays(stale, 44);
    EXPECT_FALSE(model.canTidy()) << "what is shown is not what the days say";
    EXPECT_EQ(bench.background.waiting(), 0U) << "counted while the days are being stepped";
    bench.timers.advance(250ms);
    EXPECT_EQ(bench.background.waiting(), 1U);
    EXPECT_EQ(count(stale), u"3 files"_s);
    bench.timers.advance(300ms);
    EXPECT_EQ(count(stale), u"Counting…"_s);
    bench.background.finish();
    EXPECT_EQ(rows(), QStringList({u"[-] Stale files"_s, u"  [ ] b.txt"_s, u"  [x] c.txt"_s}));
    EXPECT_TRUE(model.canTidy());
    model.setDays(stale, 0);
    model.setDays(archives, 99'999);
    EXPECT_EQ(model.recipeRows().rows().at(stale).days, 1);
    EXPECT_EQ(model.recipeRows().rows().at(archives).days, 3650);

    sheets.close();
    bench.background.finish();
    model.setDays(stale, 44);
    open();
    EXPECT_EQ(model.recipeRows().rows().at(stale).days, 1) << "the days chosen last";
}

TEST_F(CleanupModelTest, TicksWhatTheFilterShows) {
    for (const char* name : {"Bill 1.txt", "Bill 2.txt", "Letter.txt"})
        make(name, 60);
    open();
    int resets = 0;
    QObject::connect(&model.fileRows(), &QAbstractItemModel::modelReset, [&] { ++resets; });
    model.setFilterText(u"letter"_s);
    model.setFilterText(u"bill"_s);
    EXPECT_EQ(rows().size(), 4) << "looked through on the window's thread";
    bench.background.finish();
    EXPECT_EQ(rows().size(), 3);
    model.tickAll();
    EXPECT_EQ(model.tickedText(), u"1 file ticked · 5 bytes"_s);
    model.tickAll();
    model.tickRow(0, false);
    model.setFilterText({});
    EXPECT_EQ(rows(), QStringList({u"[-] Stale files"_s, u"  [ ] Bill 1.txt"_s,
                                   u"  [ ] Bill 2.txt"_s, u"  [x] Letter.txt"_s}));
    EXPECT_EQ(resets, 0);
    model.reveal(3);
    EXPECT_EQ(desktop.revealed, std::vector{bench.disk.machine.at("in/Letter.txt")});
}

TEST_F(CleanupModelTest, SaysWhatCouldNotBeMovedAndWhatChangedMeanwhile) {
    make("old.txt", 60);
    make("Screenshot.png", 1);
    make("Screenshot 2.png", 1);
    make("Screenshots", 1); // a file in the folder's place
    open();
    make("Screenshot 2.png", 3);
    const int head = model.headOf(screenshots);
    for (int row = head + 1; row < model.fileRows().rowCount(); ++row)
        if (model.fileRows().pathAt(row).endsWith(u"Screenshots"))
            model.tickRow(row, false);
    model.tidy();
    bench.background.finish();
    EXPECT_EQ(model.resultText(),
              u"1 file filed, 1 couldn’t be moved, 1 left alone because they changed meanwhile."_s);
    EXPECT_EQ(model.resultTitle(), u"in is tidier"_s);
    EXPECT_EQ(model.result().rows.back().title, u"Screenshot.png"_s);
    EXPECT_TRUE(model.result().rows.back().text.startsWith(u"move failed: "));
}

TEST_F(CleanupModelTest, StopsAndGoesOnWithoutItsSheet) {
    make("old.txt", 60);
    open();
    model.tidy();
    model.stop();
    EXPECT_EQ(model.progressText(), u"Stopping…"_s);
    bench.background.finish();
    EXPECT_EQ(model.resultTitle(), u"Stopped early"_s);
    EXPECT_EQ(model.resultText(), u"Nothing was moved."_s);
    EXPECT_TRUE(isThere("in/old.txt"));

    sheets.close();
    open();
    model.tidy();
    sheets.close();
    bench.background.finish();
    EXPECT_EQ(toasts.sentence(), u"in is tidy: 1 file filed."_s);
    toasts.act();
    bench.background.finish();
    EXPECT_TRUE(isThere("in/old.txt"));
}

TEST_F(CleanupModelTest, TurnsRecipesIntoRulesOfTheFolder) {
    make("old.txt", 60);
    bench.store->addRules({Rule{.name = u"File screenshots"_s}}, folder, RuleSource::manual);
    bench.background.finish();
    open();
    model.setDays(stale, 45);
    bench.timers.advance(250ms);
    bench.background.finish();
    model.tidy();
    bench.background.finish();
    model.keep();
    model.keep();
    QStringList rules;
    for (const Rule& rule : bench.store->folder(folder)->rules)
        rules.append(rule.name + (rule.isEnabled ? u""_s : u" (off)"_s));
    EXPECT_EQ(rules, QStringList({u"File screenshots"_s, u"Trash old installers"_s,
                                  u"Set aside stale files"_s, u"Unpack loose archives (off)"_s,
                                  u"Sort by kind (off)"_s}));
    EXPECT_EQ(bench.store->folder(folder)->rules[2].conditions.front().value, u"45"_s);
    EXPECT_EQ(model.keepText(), u"4 rules added to in."_s);
    EXPECT_FALSE(model.canKeep());
    EXPECT_TRUE(model.hasAdded());

    sheets.close();
    make("Screenshot.png", 1);
    open();
    model.tidy();
    bench.background.finish();
    model.keep();
    EXPECT_EQ(model.keepText(), u"in has a rule for each recipe already."_s);
    EXPECT_FALSE(model.hasAdded());
}

TEST_F(CleanupModelTest, TellsAnEmptyFolderFromOneThatCannotBeRead) {
    open();
    EXPECT_EQ(model.emptyText(), u"in is already tidy. Nothing matches these recipes."_s);
    EXPECT_FALSE(model.canTidy());
    std::filesystem::remove_all(bench.disk.machine.at("in"));
    model.look();
    EXPECT_EQ(model.state(), u"looking"_s);
    bench.background.finish();
    EXPECT_EQ(model.state(), u"failed"_s);
    bench.disk.machine.makeFolder("in");
    model.look();
    sheets.close(); // and what comes of it comes to nobody
    bench.background.finish();
    EXPECT_EQ(model.state(), QString());
}

} // namespace
} // namespace quillon::testing
